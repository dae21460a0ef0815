// What this implementation of the binding helpers has beyond the six of platform/binding_helpers.h.
#pragma once

#include <lua.hpp>

// Unregisters the metatable of that name: CheckMetaTableInUserType returns false for its userdata from now on, and
// ToUserType makes userdata without a metatable. May raise a memory error.
void RemoveUserTypeMetaTable(lua_State* L, const char* name);
