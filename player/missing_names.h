// Reports reads of names that the module does not define. Lua returns nil for them, so a misspelt constant is easily
// overlooked.
#pragma once

#include <lua.hpp>

namespace player {

// Sets a metatable for the global `velora` whose __index reports. May raise a memory error.
void OpenMissingNames(lua_State* L);

}  // namespace player
