// The functions of `velora.download`.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Registration rows, with an empty row at the end.
extern const luaL_Reg kDownloadFunctions[];

}  // namespace luavelora
