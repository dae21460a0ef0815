// The functions of `velora.download`.
#include "download/download_table.h"

#include "binding/boundary.h"
#include "binding/closing.h"
#include "binding/wrapper.h"
#include "download/handler.h"
#include "platform/binding_helpers.h"

namespace luavelora {
namespace {

namespace sdk = tarn::velora::download;

// Where SetSyncDownloadHandler keeps things on the stack. All that may run script code, which may set a handler of its
// own, comes first; from then on nothing is made.
constexpr int kTable = 2;
constexpr int kFirstKey = kTable + 1;
constexpr int kFirstFunction = kFirstKey + kHandlerFunctions;

void PrepareStack(lua_State* L) {
  lua_settop(L, 1);
  GetSdkCallbackTable(L, kHandlerTable);
  for (const char* key : kHandlerKeys) lua_pushstring(L, key);
}

// Takes the old functions out of the callback table.
void ClearFunctions(lua_State* L) {
  for (int i = 0; i < kHandlerFunctions; ++i) {
    lua_pushvalue(L, kFirstKey + i);
    const bool taken = lua_rawget(L, kTable) != LUA_TNIL;
    lua_pop(L, 1);
    if (!taken) continue;
    lua_pushvalue(L, kFirstKey + i);
    lua_pushnil(L);
    lua_rawset(L, kTable);
  }
}

// Pushes the handler table's functions from kFirstFunction on, and tells whether all are there.
bool ReadFunctions(lua_State* L) {
  for (int i = 0; i < kHandlerFunctions; ++i) {
    lua_pushvalue(L, kFirstKey + i);
    if (lua_rawget(L, 1) != LUA_TFUNCTION) return false;
  }
  return true;
}

void StoreFunctions(lua_State* L) {
  for (int i = 0; i < kHandlerFunctions; ++i) {
    lua_pushvalue(L, kFirstKey + i);
    lua_pushvalue(L, kFirstFunction + i);
    lua_rawset(L, kTable);
  }
}

void Register(lua_State* mainState) {
  downloadHandler.SetState(mainState);
  try {
    sdk::addSyncDownloadHandler(&downloadHandler);
  } catch (const std::exception&) {
    downloadHandler.SetState(nullptr);
    throw;
  }
}

Outcome SetSyncDownloadHandler(lua_State* L) {
  const bool given = lua_gettop(L) > 0;
  if (given && !lua_istable(L, 1)) return Refusal();
  PrepareStack(L);
  const StateRecord* state = StateRecordOf(L);
  sdk::enableAsyncEvent(false);
  sdk::removeSyncDownloadHandler(&downloadHandler);
  downloadHandler.SetState(nullptr);
  ClearFunctions(L);
  if (!given || state->closed) return Outcome::Results(0);
  if (!ReadFunctions(L)) return Outcome::Error("setSyncDownloadHandler with invalid lua handler");
  StoreFunctions(L);
  Register(state->mainState);
  return Outcome::Results(0);
}

Outcome GetSyncDownloadHandler(lua_State* L) {
  if (downloadHandler.state() == nullptr) return Outcome::Results(0);
  GetSdkCallbackTable(L, kHandlerTable);
  return Outcome::Results(1);
}

}  // namespace

const luaL_Reg kDownloadFunctions[] = {
    {"init", Entry<Wrapper<&sdk::init>>},
    {"query", Entry<Wrapper<&sdk::query>>},
    {"extendFunc", Entry<Wrapper<&sdk::extendFunc>>},
    {"getDownloadSDKVersion", Entry<Wrapper<&sdk::getDownloadSDKVersion>>},
    {"getOrbitSessionId", Entry<Wrapper<&sdk::getOrbitSessionId>>},
    {"disableDownloadFinish2", Entry<Wrapper<&sdk::disableDownloadFinish2>>},
    {"setSyncDownloadHandler", Entry<SetSyncDownloadHandler>},
    {"getSyncDownloadHandler", Entry<GetSyncDownloadHandler>},
    {nullptr, nullptr},
};

}  // namespace luavelora
