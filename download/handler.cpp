#include "download/handler.h"

#include "binding/boundary.h"
#include "binding/callback_error.h"
#include "platform/binding_helpers.h"

namespace luavelora {

LuaSyncDownloadHandler downloadHandler;

template <class PushArguments>
void LuaSyncDownloadHandler::Forward(const char* key, PushArguments pushArguments) {
  lua_State* L = state_;
  if (L == nullptr) return;
  if (!lua_checkstack(L, LUA_MINSTACK)) return LogCallbackError("stack overflow");
  auto call = [&](lua_State* inner) {
    GetSdkCallbackTable(inner, kHandlerTable);
    lua_pushstring(inner, key);
    lua_rawget(inner, -2);
    lua_remove(inner, -2);
    lua_callk(inner, pushArguments(inner), 0, 0, nullptr);
  };
  if (Protected(L, 0, call) == LUA_OK) return;
  LogCallbackError(L);
  lua_pop(L, 1);
}

void LuaSyncDownloadHandler::onInited() {
  Forward(kHandlerKeys[0], [](lua_State*) { return 0; });
}

void LuaSyncDownloadHandler::onProgress(const char* text) {
  Forward(kHandlerKeys[1], [text](lua_State* L) {
    lua_pushstring(L, text);  // nil for null
    return 1;
  });
}

void LuaSyncDownloadHandler::onFinish(const char* text, const void* bytes, std::uint64_t count) {
  Forward(kHandlerKeys[2], [=](lua_State* L) {
    lua_pushstring(L, text == nullptr ? "" : text);
    if (bytes == nullptr || count == 0)
      lua_pushnil(L);
    else
      lua_pushlstring(L, static_cast<const char*>(bytes), static_cast<std::size_t>(count));
    return 2;
  });
}

}  // namespace luavelora
