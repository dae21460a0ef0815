// The physical limit: what the module does, written by hand against Lua's own functions and without any safety. A Lua
// error leaks what is alive, an exception ends the program, a finished object is met with a crash.
#pragma once

#include <lua.hpp>

namespace bench {

// Stores the global table `bare`: the functions and classes that the cases use, by the names of the module's own.
void OpenBare(lua_State* L);

// The frame of the module's pump: the callback table fetched once, two raw lookups and one protected call per event.
void UpdateBare(lua_State* L);

// The module's start: as many tables, rows and constants, under the same names.
void InitBare(lua_State* L);

}  // namespace bench
