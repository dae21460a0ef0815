// Finds out whether a Lua value is an object of a record class.
#pragma once

#include <lua.hpp>

#include "platform/record_classes.h"
#include "records/holder.h"

namespace luavelora {

// Its address identifies the class: the metatable has it at kClassMark. Comparing that takes a third of the time of
// looking up the metatable by name. Not const, since linkers may merge equal constants.
template <class Record>
inline char classKey = 0;

inline constexpr lua_Integer kClassMark = 1;

// As Self, but may leave values on the stack. For functions that read no argument afterwards.
template <class Record>
HolderOf<Record>* SelfAndNoMore(lua_State* L, int index = 1) {
  const void* block = lua_touserdata(L, index);
  if (block == nullptr || lua_getmetatable(L, index) == 0) return nullptr;
  lua_rawgeti(L, -1, kClassMark);
  return lua_touserdata(L, -1) == &classKey<Record> ? HolderIn<Record>(block) : nullptr;
}

// Returns the holder of the object of this class at `index`, or null for anything else, finalized objects included.
// Valid until Lua runs; pin it across SDK calls.
template <class Record>
HolderOf<Record>* Self(lua_State* L, int index = 1) {
  const int top = lua_gettop(L);
  HolderOf<Record>* holder = SelfAndNoMore<Record>(L, index);
  lua_settop(L, top);
  return holder;
}

}  // namespace luavelora
