// The download handler that the SDK calls. It calls Lua at once, not through the event queue.
#pragma once

#include <lua.hpp>

#include "platform/download.h"

namespace luavelora {

inline constexpr const char* kHandlerTable = "LuaSyncDownloadHandler";
inline constexpr int kHandlerFunctions = 3;
inline constexpr const char* kHandlerKeys[kHandlerFunctions] = {"onInited", "onProgress", "onFinish"};

// Calls the script's function of the same name in the state that registered a handler; does nothing if no state did.
// The SDK must call it on the thread of that state. No error or exception leaves an operation: errors of the script's
// function, of building its arguments, and of a full Lua stack are logged as callback errors.
class LuaSyncDownloadHandler final : public tarn::velora::download::SyncDownloadHandler {
 public:
  void onInited() override;
  void onProgress(const char* text) override;
  void onFinish(const char* text, const void* bytes, std::uint64_t count) override;

  // Returns the state that registered a handler, or null.
  lua_State* state() const { return state_; }

  // Sets the state whose callback table has the three functions; null disables the handler.
  void SetState(lua_State* L) { state_ = L; }

 private:
  // Calls the script's function `key`. `pushArguments(L)` pushes its arguments and returns their number.
  template <class PushArguments>
  void Forward(const char* key, PushArguments pushArguments);

  lua_State* state_ = nullptr;
};

// The only instance. It lives as long as the library is loaded.
extern LuaSyncDownloadHandler downloadHandler;

}  // namespace luavelora
