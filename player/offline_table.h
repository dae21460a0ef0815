// The table `offline`, through which a script inspects and controls the offline runtime.
#pragma once

#include <lua.hpp>

namespace player {

// Sets the global `offline`. May raise a memory error.
void OpenOfflineTable(lua_State* L);

}  // namespace player
