// The lower bound: what the module does, written by hand against Lua's C API as fast as we can and without any safety.
// A Lua error leaks what is alive, an exception ends the program, a finalized object crashes.
#pragma once

#include <lua.hpp>

namespace bench {

// Stores the global table `bare`: the functions and classes that the cases use, by the names of the module's own.
void OpenBare(lua_State* L);

// Delivers a frame's events to the module's callback table: one lookup and one protected call per event.
void UpdateBare(lua_State* L);

}  // namespace bench
