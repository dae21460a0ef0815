// The record classes. Each Register function stores its class table and the constants of the class in the module table,
// which is on top of the stack and stays there. They may raise.
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
