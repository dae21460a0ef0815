// The module's one registration list.
#pragma once

#include <lua.hpp>
#include <span>

namespace luavelora {

// The rows of the wrappers and the callback accessors, and an empty row at the end.
extern const std::span<const luaL_Reg> kModuleFunctions;

}  // namespace luavelora
