// The module's one registration list.
#pragma once

#include <lua.hpp>

namespace luavelora {

// The 115 wrappers and the 120 callback accessors, closed by an empty row.
extern const luaL_Reg* const kModuleFunctions;

}  // namespace luavelora
