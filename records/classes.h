// The registration of the record classes. Each stores its class table, then the constants that belong to it, in the
// module table, which is on top of the stack and stays there. May raise.
#pragma once

struct lua_State;

namespace luavelora {

struct ModuleState;

void RegisterProductInfo(lua_State* L);
void RegisterOrderInfo(lua_State* L);
void RegisterQueryRankInfo(lua_State* L);
void RegisterShareInfo(lua_State* L);
void RegisterAccountInfo(lua_State* L);
void RegisterSkuDetailsInfo(lua_State* L);

// Makes every object of every class, controller events included, a wrong self. Called when the state closes.
void UnregisterClasses(lua_State* L, const ModuleState& state);

}  // namespace luavelora
