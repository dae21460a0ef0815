#include "download/download_table.h"

#include "binding/boundary.h"
#include "binding/ownership.h"
#include "binding/wrapper.h"
#include "download/handler.h"
#include "platform/binding_helpers.h"

namespace luavelora {
namespace {

namespace sdk = tarn::velora::download;

// Stack indexes in SetSyncDownloadHandler. It fills the stack first, which can run script code that sets a handler too,
// and allocates nothing afterwards.
constexpr int kTable = 2;
constexpr int kFirstKey = kTable + 1;
constexpr int kFirstFunction = kFirstKey + kHandlerFunctions;

// Leaves argument 1, the callback table and the keys of the functions on the stack.
void PrepareStack(lua_State* L) {
  lua_settop(L, 1);
  GetSdkCallbackTable(L, kHandlerTable);
  for (const char* key : kHandlerKeys) lua_pushstring(L, key);
}

// Removes the functions of the old handler from the callback table.
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

// Pushes the functions of the handler in argument 1 and returns true. Returns false if one of them is no function.
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
  const ModuleState* state = ModuleStateOf(L);
  sdk::enableAsyncEvent(false);
  sdk::removeSyncDownloadHandler(&downloadHandler);
  downloadHandler.SetState(nullptr);
  ClearFunctions(L);
  if (!given || state == nullptr || state->closed) return Outcome::Results(0);
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
#define VELORA_DOWNLOAD_OPERATION(name) Row<Wrapper<&sdk::name>>(#name),
#include "platform/download.def"
    Row<SetSyncDownloadHandler>("setSyncDownloadHandler"),
    Row<GetSyncDownloadHandler>("getSyncDownloadHandler"),
    {nullptr, nullptr},
};

}  // namespace luavelora
