// The binding helpers. Metatables and callback tables are kept in the registry under their names.
#include "binding/helpers/metatables.h"
#include "platform/binding_helpers.h"

namespace {

// Sets `metatable[key]`, for the metatable on top of the stack, to the class table's raw entry under the same key.
void CopyFromClass(lua_State* L, int classTable, const char* key) {
  lua_pushstring(L, key);
  lua_pushvalue(L, -1);
  lua_rawget(L, classTable);
  lua_rawset(L, -3);
}

}  // namespace

void ToUserType(lua_State* L, void* pointer, const char* name) {
  *static_cast<void**>(lua_newuserdata(L, sizeof(void*))) = pointer;
  luaL_setmetatable(L, name);
}

void* FromUserType(lua_State* L, std::int32_t index) { return *static_cast<void**>(lua_touserdata(L, index)); }

bool CheckMetaTableInUserType(lua_State* L, std::int32_t index, const char* name) {
  if (lua_type(L, index) != LUA_TUSERDATA || lua_getmetatable(L, index) == 0) return false;
  luaL_getmetatable(L, name);
  const bool same = lua_rawequal(L, -1, -2) != 0;
  lua_pop(L, 2);
  return same;
}

void InitUserTypeMetaTable(lua_State* L, const char* name) {
  const int classTable = lua_gettop(L);
  if (luaL_getmetatable(L, name) != LUA_TTABLE) {
    lua_pop(L, 1);
    lua_createtable(L, 1, 5);  // with room for a value at 1 that the owner of the class may store
    lua_pushstring(L, name);
    lua_setfield(L, -2, "__name");
    lua_pushboolean(L, 0);
    lua_setfield(L, -2, "__metatable");
  }
  CopyFromClass(L, classTable, "__gc");
  CopyFromClass(L, classTable, "__tostring");
  lua_pushvalue(L, classTable);
  lua_setfield(L, -2, "__index");
  // Registered last, so that an error above leaves no incomplete metatable in the registry.
  lua_setfield(L, LUA_REGISTRYINDEX, name);
}

void RemoveUserTypeMetaTable(lua_State* L, const char* name) {
  lua_pushnil(L);
  lua_setfield(L, LUA_REGISTRYINDEX, name);
}

void GetSdkCallbackTable(lua_State* L, const char* name) { luaL_getsubtable(L, LUA_REGISTRYINDEX, name); }

std::int32_t GetLuaTableLen(lua_State* L) { return static_cast<std::int32_t>(lua_rawlen(L, -1)); }
