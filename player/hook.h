// The player's debug hook: it stops what goes on after Ctrl-C and, where that is wanted, reports refused calls.
#pragma once

#include <lua.hpp>

namespace player {

// Sets the hook; coroutines have it from their makers. Scripts do not see it: debug.sethook gives way to a hook of the
// script's own and brings the player's back when that is taken away; debug.gethook tells of the script's alone. What a
// script makes while its own hook is set stays without the player's. May raise a memory error.
void OpenHook(lua_State* L, bool reportRefusedCalls);

}  // namespace player
