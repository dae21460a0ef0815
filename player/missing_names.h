// Reports the reading of names that the module does not have. Lua itself returns nil, so a misspelt constant is easily
// missed.
#pragma once

#include <lua.hpp>

namespace player {

// Gives the global `velora` a metatable that reports. May raise a memory error.
void OpenMissingNames(lua_State* L);

}  // namespace player
