#include "player/arguments.h"

namespace player {

std::string TypeMismatch(lua_State* L, int index, const char* expected) {
  const int type = lua_type(L, index);
  if (type == LUA_TNUMBER && std::string_view(expected) == "integer") return "number has no integer representation";
  return std::string(expected) + " expected, got " + (type == LUA_TNONE ? "no value" : lua_typename(L, type));
}

std::string_view CheckString(lua_State* L, int index) {
  if (lua_type(L, index) != LUA_TSTRING) throw ArgumentError(index, TypeMismatch(L, index, "string"));
  std::size_t length = 0;
  const char* text = lua_tolstring(L, index, &length);
  return {text, length};
}

bool ToInteger(lua_State* L, int index, lua_Integer& value) {
  int isInteger = 0;
  if (lua_type(L, index) == LUA_TNUMBER) value = lua_tointegerx(L, index, &isInteger);
  return isInteger != 0;
}

lua_Integer CheckInteger(lua_State* L, int index) {
  lua_Integer value = 0;
  if (!ToInteger(L, index, value)) throw ArgumentError(index, TypeMismatch(L, index, "integer"));
  return value;
}

}  // namespace player
