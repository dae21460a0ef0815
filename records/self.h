// Which userdata is an object of which record class.
#pragma once

#include <lua.hpp>

#include "platform/record_classes.h"
#include "records/holder.h"

namespace luavelora {

// Its address is the key of two private entries: the class's metatable in the registry, and a mark in the metatable.
// Looking up the mark is what makes a method call quick; looking up the metatable by its name takes three times as
// long.
template <class Record>
inline char kClassKey = 0;

// Returns the holder of the object of this class at `index`, or null for anything else, finalized objects included.
// Valid until Lua runs; pin it across SDK calls.
template <class Record>
HolderOf<Record>* Self(lua_State* L, int index = 1) {
  if (lua_type(L, index) != LUA_TUSERDATA || lua_getmetatable(L, index) == 0) return nullptr;
  const bool isObject = lua_rawgetp(L, -1, &kClassKey<Record>) != LUA_TNIL;
  lua_pop(L, 2);
  return isObject ? HolderIn<Record>(lua_touserdata(L, index)) : nullptr;
}

}  // namespace luavelora
