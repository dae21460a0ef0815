// The sub-table `download` of the module table.
#pragma once

#include <lua.hpp>

namespace luavelora {

// The eight functions, closed by an empty row.
extern const luaL_Reg kDownloadFunctions[];

}  // namespace luavelora
