// The functions of the module table.
#pragma once

#include <lua.hpp>
#include <span>

namespace luavelora {

// Registration rows of the wrappers and the callback accessors, with an empty row at the end.
extern const std::span<const luaL_Reg> kModuleFunctions;

}  // namespace luavelora
