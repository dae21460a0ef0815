// Descriptions of calls, for reports.
#pragma once

#include <lua.hpp>

namespace player {

// A buffer for a description. A longer description is truncated.
using CallText = char[2048];

// Writes the position of the calling script and the running call of `function` with its arguments, as in
// `shop.lua:12: zvUpdateRank("speed", table)`. Only the arguments must be on the stack. For debug hooks: raises
// nothing, allocates nothing in Lua and leaves the stack unchanged.
void DescribeCall(lua_State* L, const char* function, CallText& text);

// Writes the position of the calling script, as in `shop.lua:12`. For debug hooks, like DescribeCall.
void DescribePosition(lua_State* L, CallText& text);

// Returns the name of the record class of the object at `index`, or null for any other value.
const char* ClassName(lua_State* L, int index);

}  // namespace player
