// Reports the calls that the module refuses, or accepts only in part. A refused call does nothing and returns nil, so
// the mistake is easily missed.
#pragma once

#include <lua.hpp>

namespace player {

// Records the functions of the global `velora`, the module's table, and watches its names. May raise a memory error.
void OpenStrict(lua_State* L);

// Reports that the running call of the operation is one that a real SDK would hardly accept.
void ReportWarning(const char* operation, const char* reason);

// Watches the calls of those functions and reports each refused one. Raises nothing, allocates
// nothing in Lua and leaves the stack as it was. Finalisers run without hooks: their calls are not seen and may hide
// the call that they interrupt. Only one Lua state of the process can be watched.
void WatchCall(lua_State* L, lua_Debug* event);

}  // namespace player
