// Follows the events of a frame: which callback belongs to which event, and which events have no callback.
#pragma once

#include <cstddef>
#include <lua.hpp>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event.h"

namespace player {

// Gets ready for the module's table of callbacks. `trace` prints each event on stderr. May raise a memory error.
void OpenEventPass(lua_State* L, bool trace);

// Enclose the module's update. A pass that an error has ended is closed by the next one and by FinishEventPass.
void BeginPass(lua_State* L);
void EndPass(lua_State* L);

// The events of the pass, before the first is delivered.
void TakeEvents(const std::vector<std::shared_ptr<tarn::velora::Event>>& events);

// Watches the calls and returns that a debug hook sees. A callback that runs under the script's own hook is not seen;
// its event then only shows when the pass ends. Raises nothing, allocates nothing in Lua and leaves the stack as it
// was.
void WatchCallbacks(lua_State* L, lua_Debug* event);

// Tells which callback the error belongs to that the module has logged in this line, with a traceback. Ignores all
// other lines.
void ReadLogLine(const std::string& line);

// Reports the events that came without a callback, and forgets everything.
void FinishEventPass();

// While one lives, a function of the download handler runs.
class HandlerCall {
 public:
  explicit HandlerCall(std::string_view function);
  ~HandlerCall();
  HandlerCall(const HandlerCall&) = delete;
  HandlerCall& operator=(const HandlerCall&) = delete;
};

}  // namespace player
