// The table `offline`: how a script looks into the offline runtime and steers it.
#pragma once

#include <lua.hpp>

namespace player {

// Sets the global `offline`. May raise a memory error.
void OpenOfflineTable(lua_State* L);

}  // namespace player
