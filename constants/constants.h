// The SDK's named constants and the module's own codes.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Returns what scripts see of a float constant: truncated toward zero; values outside 32 bits are clamped, and NaN is
// 0.
lua_Integer LuaValue(float value);

inline constexpr int kConstants = 0
#define VELORA_CONSTANT(name, kind) +1
#include "platform/constants.def"
#define VELORA_MODULE_CONSTANT(name, value) +1
#include "constants/module_constants.def"
    ;

// Stores the constants raw in the table on top of the stack, which stays there. May raise.
void RegisterSdkConstants(lua_State* L);

}  // namespace luavelora
