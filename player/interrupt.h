// Handling of Ctrl-C. The first one ends the run in the usual order, the second one ends the process.
#pragma once

#include <lua.hpp>

namespace player {

// Installs a handler, after which Ctrl-C sets a flag. If SIGINT was ignored, as for background jobs, it stays ignored.
void CatchInterrupt();

// Returns whether Ctrl-C was pressed.
bool Interrupted();

// To be called from a count hook. From 250 ms after Ctrl-C on, raises the error "interrupted" in each call, until the
// script ends. The delay lets an ordinary frame finish.
void StopWhenInterrupted(lua_State* L);

}  // namespace player
