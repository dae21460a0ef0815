// The player's debug hook: interrupts scripts after Ctrl-C, follows callbacks and, with --strict, watches calls.
#pragma once

#include <lua.hpp>

namespace player {

// Sets the hook; coroutines inherit it from their creator. Scripts do not see it: debug.sethook replaces it by the
// script's hook and restores it when that is removed; debug.gethook returns only the script's hook. Coroutines created
// while the script's own hook is set do not get the player's. May raise a memory error.
void OpenHook(lua_State* L, bool strict);

// Sets whether the main state's hook sees calls and returns. With --strict it always does; otherwise only while
// callbacks may run, since it costs time.
void HookCalls(lua_State* L, bool enabled);

}  // namespace player
