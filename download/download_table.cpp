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

// Empties the handler's callback table, which is on top of the stack. The handler is off by then.
void ClearHandler(lua_State* L) {
  for (const char* key : kHandlerKeys) {
    lua_pushstring(L, key);
    lua_pushnil(L);
    lua_rawset(L, -3);
  }
}

// Copies the three functions of the handler table at index 1 into the callback table on top of the stack. False
// when one is missing.
bool TakeFunctions(lua_State* L) {
  for (const char* key : kHandlerKeys) {
    lua_pushstring(L, key);
    lua_pushvalue(L, -1);
    lua_rawget(L, 1);
    if (!lua_isfunction(L, -1)) {
      lua_pop(L, 2);
      return false;
    }
    lua_rawset(L, -3);
  }
  return true;
}

Outcome SetSyncDownloadHandler(lua_State* L) {
  const bool given = lua_gettop(L) > 0;
  if (given && !lua_istable(L, 1)) return Refusal();
  sdk::enableAsyncEvent(false);
  sdk::removeSyncDownloadHandler(&downloadHandler);
  downloadHandler.SetState(nullptr);
  GetSdkCallbackTable(L, kHandlerTable);
  ClearHandler(L);
  const StateRecord* state = StateRecordOf(L);
  if (!given || state->closed) return Outcome::Results(0);
  if (!TakeFunctions(L)) {
    ClearHandler(L);
    return Outcome::Error("setSyncDownloadHandler with invalid lua handler");
  }
  downloadHandler.SetState(state->mainState);
  try {
    sdk::addSyncDownloadHandler(&downloadHandler);
  } catch (const std::exception&) {
    downloadHandler.SetState(nullptr);
    throw;
  }
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
