// The handler through which the SDK's download service calls Lua directly.
#pragma once

#include <lua.hpp>

#include "platform/download.h"

namespace luavelora {

inline constexpr const char* kHandlerTable = "LuaSyncDownloadHandler";
inline constexpr int kHandlerFunctions = 3;
inline constexpr const char* kHandlerKeys[kHandlerFunctions] = {"onInited", "onProgress", "onFinish"};

// Forwards each of the SDK's calls to the script's function of the same name, in the state that registered it, and
// does nothing while none is. The SDK must call it on the thread of that state. Nothing ever leaves an operation: what
// the function raises, what Lua raises while the arguments are built, and a full Lua stack are logged as errors of a
// callback.
class LuaSyncDownloadHandler final : public tarn::velora::download::SyncDownloadHandler {
 public:
  void onInited() override;
  void onProgress(const char* text) override;
  void onFinish(const char* text, const void* bytes, std::uint64_t count) override;

  // Null while no handler is registered.
  lua_State* state() const { return state_; }

  // The state whose callback table holds the three functions from now on; null to be off.
  void SetState(lua_State* L) { state_ = L; }

 private:
  template <class PushArguments>
  void Forward(const char* key, PushArguments pushArguments);

  lua_State* state_ = nullptr;
};

// The one instance, from the loading of the library to its unloading.
extern LuaSyncDownloadHandler downloadHandler;

}  // namespace luavelora
