// Ctrl-C. The first one ends the run in order, the second one ends the process.
#pragma once

#include <lua.hpp>

namespace player {

// From now on Ctrl-C sets a flag. If SIGINT was ignored, as for background jobs, it stays ignored.
void CatchInterrupt();

// Returns whether Ctrl-C was pressed.
bool Interrupted();

// To be called regularly from a count hook. Raises the error "interrupted" if the script is still running a while after
// Ctrl-C, and again until it ends. A frame that is only busy may finish.
void StopWhenInterrupted(lua_State* L);

}  // namespace player
