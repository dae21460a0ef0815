// The SDK's named constants and the module's own codes.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Returns a float constant as scripts see it: truncated toward zero and clamped to 32 bits, or 0 for NaN.
lua_Integer LuaValue(float value);

// The number of constants that RegisterSdkConstants stores.
inline constexpr int kConstants = 0
#define VELORA_CONSTANT(name, kind) +1
#include "platform/constants.def"
#define VELORA_MODULE_CONSTANT(name, value) +1
#include "constants/module_constants.def"
    ;

// Stores the current values of the SDK's constants, and the module's own codes, in the table on top of the stack,
// without metamethods, and leaves the table there. May raise.
void RegisterSdkConstants(lua_State* L);

}  // namespace luavelora
