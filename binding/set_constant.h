// Stores a constant in the table on top of the stack, without metamethods, and leaves the table there. May raise.
#pragma once

#include <lua.hpp>
#include <string>

namespace luavelora {

inline void SetConstant(lua_State* L, const char* key, lua_Integer value) {
  lua_pushstring(L, key);
  lua_pushinteger(L, value);
  lua_rawset(L, -3);
}

inline void SetConstant(lua_State* L, const char* key, const std::string& value) {
  lua_pushstring(L, key);
  lua_pushstring(L, value.c_str());
  lua_rawset(L, -3);
}

}  // namespace luavelora
