// The lower bound: hand-written bindings that do what the module does, as fast as we can make them and without safety.
// A Lua error leaks memory, an exception ends the program, and using a finalized object crashes.
#pragma once

#include <lua.hpp>

namespace bench {

// Stores the global table `bare` with the functions and classes that the cases use, under the module's names.
void OpenBare(lua_State* L);

// Calls the callbacks in the module's callback table for a frame's events, with one lookup and one protected call each.
void UpdateBare(lua_State* L);

}  // namespace bench
