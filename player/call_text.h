// How reports of refused calls describe a call.
#pragma once

#include <lua.hpp>

namespace player {

// Room for a description, which is cut off if it is longer.
using CallText = char[2048];

// Describes the running call of `function`, which has only its arguments on the stack. Writes the position of the
// calling script and the arguments, as in `shop.lua:12: zvUpdateRank("speed", table)`. For debug hooks: raises nothing,
// allocates nothing in Lua and leaves the stack as it was.
void DescribeCall(lua_State* L, const char* function, CallText& text);

// Writes the position of the calling script, as in `shop.lua:12`. As DescribeCall otherwise.
void DescribePosition(lua_State* L, CallText& text);

// Returns the name of the record class of the object at `index`, or null for any other value.
const char* ClassName(lua_State* L, int index);

}  // namespace player
