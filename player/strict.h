// Reports the calls that the module refuses. A refused call does nothing and returns nil, so the mistake is easily
// missed.
#pragma once

#include <lua.hpp>

namespace player {

// The events of a debug hook that WatchCall needs.
inline constexpr int kCallEvents = LUA_MASKCALL | LUA_MASKRET;

// Records the functions of the global `velora`, the module's table. May raise a memory error.
void OpenStrict(lua_State* L);

// Watches the calls of those functions and prints a line on stderr for each refused one. Raises nothing, allocates
// nothing in Lua and leaves the stack as it was. Finalisers run without hooks: their calls are not seen and may hide
// the call that they interrupt. Only one Lua state of the process can be watched.
void WatchCall(lua_State* L, lua_Debug* event);

}  // namespace player
