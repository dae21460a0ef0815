// Reports the calls that the module refused: it does nothing then and answers nil, so that the mistake is easily
// missed.
#pragma once

#include <lua.hpp>

namespace player {

// The events of a debug hook that WatchCall is to be given.
inline constexpr int kCallEvents = LUA_MASKCALL | LUA_MASKRET;

// Learns the functions of the global `velora`, the module's table. May raise a memory error.
void OpenStrict(lua_State* L);

// Follows the calls of those functions, and prints a line on stderr for each that was refused. Raises nothing,
// allocates nothing in Lua and leaves the stack as it was. Finalisers run without hooks: their calls are not
// seen, and may hide the call that they interrupt. Only one Lua state of the process may be followed.
void WatchCall(lua_State* L, lua_Debug* event);

}  // namespace player
