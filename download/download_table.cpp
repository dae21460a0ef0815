// The functions of `velora.download`.
#include "download/download_table.h"

#include "binding/boundary.h"
#include "binding/wrapper.h"
#include "download/handler.h"
#include "platform/binding_helpers.h"

namespace luavelora {
namespace {

namespace sdk = tarn::velora::download;

constexpr const char* kSentinel = "velora.sentinel";

// Lives in the registry from the module's start; its finaliser runs when the state closes.
struct Sentinel {
  lua_State* mainState;
  bool closed;
};

Outcome CloseSentinel(lua_State* L) {
  auto* sentinel = static_cast<Sentinel*>(lua_touserdata(L, 1));
  sentinel->closed = true;
  if (downloadHandler.state() == sentinel->mainState) downloadHandler.SetState(nullptr);
  return Outcome::Results(0);
}

// The main state of the calling coroutine's universe, which outlives every coroutine; null once it is closing.
lua_State* HandlerState(lua_State* L) {
  lua_getfield(L, LUA_REGISTRYINDEX, kSentinel);
  const auto* sentinel = static_cast<const Sentinel*>(lua_touserdata(L, -1));
  lua_pop(L, 1);
  return sentinel == nullptr || sentinel->closed ? nullptr : sentinel->mainState;
}

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
  lua_State* mainState = HandlerState(L);
  if (!given || mainState == nullptr) return Outcome::Results(0);
  if (!TakeFunctions(L)) {
    ClearHandler(L);
    return Outcome::Error("setSyncDownloadHandler with invalid lua handler");
  }
  downloadHandler.SetState(mainState);
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

void WatchForClosing(lua_State* L) {
  if (lua_getfield(L, LUA_REGISTRYINDEX, kSentinel) == LUA_TNIL) {
    lua_rawgeti(L, LUA_REGISTRYINDEX, LUA_RIDX_MAINTHREAD);
    lua_State* mainState = lua_tothread(L, -1);
    lua_createtable(L, 0, 1);
    lua_pushcfunction(L, Entry<CloseSentinel>);
    lua_setfield(L, -2, "__gc");
    auto* sentinel = static_cast<Sentinel*>(lua_newuserdata(L, sizeof(Sentinel)));
    *sentinel = {mainState, false};
    lua_insert(L, -2);
    lua_setmetatable(L, -2);
    lua_setfield(L, LUA_REGISTRYINDEX, kSentinel);
    lua_pop(L, 1);
  }
  lua_pop(L, 1);
}

}  // namespace luavelora
