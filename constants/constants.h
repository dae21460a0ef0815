// The SDK's named constants and the module's own codes.
#pragma once

struct lua_State;

namespace luavelora {

// Stores the 701 constants raw in the table on top of the stack, which stays there. May raise.
void RegisterSdkConstants(lua_State* L);

}  // namespace luavelora
