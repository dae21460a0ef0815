// The sub-table `download` of the module table.
#pragma once

#include <lua.hpp>

namespace luavelora {

// The eight functions, closed by an empty row.
extern const luaL_Reg kDownloadFunctions[];

// Makes sure that the download handler forgets this Lua state when it closes. Call it before anything else is made at
// the module's start: what is made first is finalised last. May raise.
void WatchForClosing(lua_State* L);

}  // namespace luavelora
