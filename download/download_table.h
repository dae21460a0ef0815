// The sub-table `download` of the module table.
#pragma once

#include <lua.hpp>

namespace luavelora {

// The functions, with an empty row at the end.
extern const luaL_Reg kDownloadFunctions[];

}  // namespace luavelora
