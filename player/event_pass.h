// Follows the events of a frame, to find out which event each callback is called for and which events have no callback.
#pragma once

#include <cstddef>
#include <lua.hpp>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event.h"

namespace player {

// Finds the module's callback table. If `trace`, each event is printed on stderr. May raise a memory error.
void OpenEventPass(lua_State* L, bool trace);

// To be called before and after the module's update. If an error skips EndPass, the next BeginPass or FinishEventPass
// ends the pass.
void BeginPass(lua_State* L);
void EndPass(lua_State* L);

// Sets the events of the pass; to be called before the first is delivered.
void SetPassEvents(const std::vector<std::shared_ptr<tarn::velora::Event>>& events);

// Detects callbacks; to be called by the debug hook for calls and returns. While the script's own hook is set,
// callbacks are not detected, and their events are printed only when the pass ends. Raises nothing, allocates nothing
// in Lua and leaves the stack unchanged.
void WatchCallbacks(lua_State* L, lua_Debug* event);

// If the line logs an error of a callback, prints which callback it is, with a traceback. Ignores all other lines.
void ReadLogLine(const std::string& line);

// Reports the events that came without a callback, and resets the state.
void FinishEventPass();

// Lives while a function of the download handler runs.
class HandlerCall {
 public:
  explicit HandlerCall(std::string_view function);
  ~HandlerCall();
  HandlerCall(const HandlerCall&) = delete;
  HandlerCall& operator=(const HandlerCall&) = delete;
};

}  // namespace player
