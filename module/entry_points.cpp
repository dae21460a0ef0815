// The three exported entry points.
#include <lua.hpp>

#include "binding/boundary.h"
#include "binding/ownership.h"
#include "constants/constants.h"
#include "download/download_table.h"
#include "download/handler.h"
#include "events/callbacks.h"
#include "events/pad_event.h"
#include "events/pump.h"
#include "module/lua_velora.h"
#include "platform/log.h"
#include "platform/operations.h"
#include "records/classes.h"
#include "wrappers/registration.h"

namespace luavelora {
namespace {

constexpr luaL_Reg kUtilsFunctions[] = {{nullptr, nullptr}};

// Stores a new table of functions in the table on top of the stack, without metamethods.
void SetSubTable(lua_State* L, const char* key, const luaL_Reg* functions) {
  lua_pushstring(L, key);
  lua_newtable(L);
  luaL_setfuncs(L, functions, 0);
  lua_rawset(L, -3);
}

// Called when the state closes. Makes its objects invalid and disables a download handler that it registered.
void AtClose(lua_State* L, const ModuleState& state) {
  if (downloadHandler.state() == state.mainState) downloadHandler.SetState(nullptr);
  UnregisterClasses(L, state);
}

// Builds the module table, which stays on top of the stack until it is complete. It becomes a global as soon as it has
// its functions.
void Build(lua_State* L) {
  OpenModuleState(L, AtClose);
  // Creates the table, since creating it in Deinit could run a finalizer that raises.
  GetSdkCallbackTable(L, kCallbackTable);
  lua_pop(L, 1);
  tarn::velora::LogChannel = tarn::log::RegisterChannel("VELORA");
  lua_createtable(L, 0, static_cast<int>(kModuleFunctions.size()) + kConstants);
  luaL_setfuncs(L, kModuleFunctions.data(), 0);
  lua_pushvalue(L, -1);
  lua_setglobal(L, "velora");
  RegisterProductInfo(L);
  RegisterOrderInfo(L);
  RegisterQueryRankInfo(L);
  RegisterShareInfo(L);
  RegisterAccountInfo(L);
  RegisterSkuDetailsInfo(L);
  RegisterPadEvent(L);
  RegisterSdkConstants(L);
  SetSubTable(L, "download", kDownloadFunctions);
  SetSubTable(L, "utils", kUtilsFunctions);
  lua_pop(L, 1);
}

// Stops the collector while it builds: nothing that Build creates becomes garbage, so a collection would be wasted.
Outcome Init(lua_State* L) {
  const bool running = lua_gc(L, LUA_GCISRUNNING, 0) != 0;
  lua_gc(L, LUA_GCSTOP, 0);
  auto build = [](lua_State* inner) { Build(inner); };
  const int status = Protected(L, 0, build);
  if (running) lua_gc(L, LUA_GCRESTART, 0);
  return status == LUA_OK ? Outcome::Results(0) : Outcome::Rethrow();
}

// Skips empty slots, since storing nil under a new key would allocate.
Outcome Deinit(lua_State* L) {
  GetSdkCallbackTable(L, kCallbackTable);
  for (int slot = 0; slot < kEventTypes; ++slot) {
    const bool taken = lua_rawgeti(L, -1, slot) != LUA_TNIL;
    lua_pop(L, 1);
    if (!taken) continue;
    lua_pushnil(L);
    lua_rawseti(L, -2, slot);
  }
  lua_pop(L, 1);
  return Outcome::Results(0);
}

// Runs the body of an entry point and raises its error. Hosts call entry points directly and not through Lua, so Lua
// has not ensured any stack space.
void Run(lua_State* L, Outcome (*body)(lua_State*)) {
  luaL_checkstack(L, LUA_MINSTACK, nullptr);
  ErrorText text;
  const Outcome outcome = Guarded(L, text, body);
  if (outcome.Failed()) Raise(L, outcome);
}

}  // namespace
}  // namespace luavelora

void InitLuaVelora(lua_State* L) { luavelora::Run(L, luavelora::Init); }

void UpdateLuaVelora(lua_State* L) { luavelora::Run(L, luavelora::RunPass); }

void DeinitLuaVelora(lua_State* L) { luavelora::Run(L, luavelora::Deinit); }
