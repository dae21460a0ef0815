// The three exported entry points: what happens at start, each frame, at the end.
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

// Stores a new table of functions raw in the table on top of the stack.
void SetSubTable(lua_State* L, const char* key, const luaL_Reg* functions) {
  lua_pushstring(L, key);
  lua_newtable(L);
  luaL_setfuncs(L, functions, 0);
  lua_rawset(L, -3);
}

// Afterwards the state's objects are invalid and the download service no longer calls it.
void AtClose(lua_State* L, const ModuleState& state) {
  if (downloadHandler.state() == state.mainState) downloadHandler.SetState(nullptr);
  UnregisterClasses(L, state);
}

// The module table stays on top from its creation to the end. It is published as soon as it has its functions.
void Build(lua_State* L) {
  OpenModuleState(L, AtClose);
  GetSdkCallbackTable(L, kCallbackTable);  // created now, since doing so in Deinit could run a finalizer that raises
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

// Everything that Init creates stays, so the collector would only look at it again and again; it pauses.
Outcome Init(lua_State* L) {
  const bool running = lua_gc(L, LUA_GCISRUNNING, 0) != 0;
  lua_gc(L, LUA_GCSTOP, 0);
  auto build = [](lua_State* inner) { Build(inner); };
  const int status = Protected(L, 0, build);
  if (running) lua_gc(L, LUA_GCRESTART, 0);
  return status == LUA_OK ? Outcome::Results(0) : Outcome::Rethrow();
}

// An empty slot is left alone: storing nil under a new key would allocate.
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

// The host calls the entry points as plain functions: stack space is not guaranteed, and only a Lua error may escape.
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
