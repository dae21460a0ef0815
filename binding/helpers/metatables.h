// A binding helper in addition to the six of platform/binding_helpers.h.
#pragma once

#include <lua.hpp>

// Unregisters the metatable `name`. Afterwards CheckMetaTableInUserType returns false for its userdata, and ToUserType
// creates userdata without a metatable. May raise a memory error.
void RemoveUserTypeMetaTable(lua_State* L, const char* name);
