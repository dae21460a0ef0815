// Ctrl-C. The first one asks for an end in good order, the second one ends the process.
#pragma once

#include <lua.hpp>

namespace player {

// From now on Ctrl-C is noted rather than deadly. Where it was ignored, as in what a shell runs in the background, it
// is.
void CatchInterrupt();

// Whether it was pressed.
bool Interrupted();

// To be called from a count hook, now and then: raises the error "interrupted" where the script has kept on running
// for a while after Ctrl-C, again and again until it ends. A frame that is merely busy may finish.
void StopWhenInterrupted(lua_State* L);

}  // namespace player
