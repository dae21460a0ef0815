// Reports the calls that the module refuses. A refused call does nothing and returns nil, so the mistake is easily
// overlooked.
#pragma once

#include <lua.hpp>

namespace player {

// Collects the functions of the global `velora`, and starts to report missing names in it. May raise a memory error.
void OpenStrict(lua_State* L);

// Reports that a real SDK would probably refuse the running call of the operation.
void ReportWarning(const char* operation, const char* reason);

// Reports each refused call of these functions; to be called by the debug hook for calls and returns. Raises nothing,
// allocates nothing in Lua and leaves the stack unchanged. Finalizers run without hooks: their calls are not detected,
// and if one calls the SDK, the call that it interrupts may not be reported. Works for one Lua state at a time.
void WatchCall(lua_State* L, lua_Debug* event);

}  // namespace player
