// The player's debug hook: interrupts scripts after Ctrl-C, follows callbacks and, with --strict, watches calls.
#pragma once

#include <lua.hpp>

namespace player {

// Sets the hook. Coroutines inherit it from their creator. It is hidden from scripts: debug.sethook replaces it with
// the script's hook and restores it when that is removed, and debug.gethook returns only the script's hook. Coroutines
// created while the script's hook is set do not get the player's. May raise a memory error.
void OpenHook(lua_State* L, bool strict);

// Sets whether the main thread's hook is called for calls and returns. To be enabled only while callbacks may run,
// since it takes time. With --strict it is always enabled, and this does nothing.
void HookCalls(lua_State* L, bool enabled);

}  // namespace player
