// For each event in order, the module calls the function in the event's slot of the callback table, if there is one. No
// script runs between two callbacks. So when the function in an event's slot is called, the earlier events that were
// not delivered had no callback.
#include "player/event_pass.h"

#include <cstdio>
#include <utility>

#include "offline/control.h"
#include "platform/binding_helpers.h"
#include "player/call_chain.h"
#include "player/reports.h"
#include "player/terminal.h"
#include "player/timeline.h"

namespace player {
namespace {

using tarn::velora::Event;
using tarn::velora::offline::EventText;

// A running callback or download handler; a callback may cause calls of handlers.
struct Running {
  std::string name;
  std::size_t firstCall;  // index in the call chain
};

struct Pass {
  lua_State* L = nullptr;  // null outside of a pass
  std::vector<std::shared_ptr<Event>> events;
  std::size_t next = 0;            // index of the first event that the module has not processed
  const void* callback = nullptr;  // lua_Debug::i_ci of the running callback, or null
};

// Events of one name that came without a callback.
struct UnhandledEvents {
  std::string name;
  int count;
};

bool isTraced = false;
Pass pass;
std::vector<Running> running;
std::vector<UnhandledEvents> unhandledEvents;

// Its address is the registry key of the callback table.
constexpr char kCallbacks = 0;

constexpr int kEventTypes = 0
#define VELORA_EVENT(type, name, Layout) +1
#include "platform/events.def"
    ;

bool IsKnown(const Event& event) { return event.type >= 0 && event.type < kEventTypes; }

// Pushes the callback table and the event's callback. Returns the type of the latter.
int PushCallback(lua_State* L, const Event& event) {
  lua_rawgetp(L, LUA_REGISTRYINDEX, &kCallbacks);
  return lua_rawgeti(L, -1, event.type);
}

bool HasCallback(lua_State* L, const Event& event) {
  const bool has = PushCallback(L, event) != LUA_TNIL;
  lua_pop(L, 2);
  return has;
}

// Returns whether the function on top of the stack is the event's callback.
bool IsCallback(lua_State* L, const Event& event) {
  if (!IsKnown(event)) return false;
  PushCallback(L, event);
  const bool same = lua_rawequal(L, -1, -3) != 0;
  lua_pop(L, 2);
  return same;
}

void CountUnhandled(const std::string& text) {
  const std::string name = text.substr(0, text.find('('));
  for (UnhandledEvents& row : unhandledEvents) {
    if (row.name != name) continue;
    ++row.count;
    return;
  }
  unhandledEvents.push_back({name, 1});
}

// Prints the event if tracing is on, adds it to the timeline, and counts it if it is not handled.
void TraceEvent(const std::string& text, bool handled) {
  if (isTraced) std::fprintf(stderr, "[event] %s%s\n", text.c_str(), handled ? "" : ", no callback");
  MarkPoint(Track::kEvents, handled ? text : text + ", no callback");
  if (!handled) CountUnhandled(text);
}

void TraceUpTo(lua_State* L, std::size_t end) {
  for (; pass.next < end; ++pass.next) {
    const Event& event = *pass.events[pass.next];
    TraceEvent(EventText(event), HasCallback(L, event));
  }
}

void EndCallback(std::string_view error = {}) {
  if (pass.callback != nullptr) EndSlice(error);
  pass.callback = nullptr;
  running.clear();
}

// If the function on top of the stack, whose call begins, is the callback of an event, starts to follow it.
void BeginCallback(lua_State* L, lua_Debug* call) {
  std::size_t index = pass.next;
  while (index < pass.events.size() && !IsCallback(L, *pass.events[index])) ++index;
  if (index == pass.events.size()) return;
  TraceUpTo(L, index);
  const std::string text = EventText(*pass.events[pass.next++]);
  TraceEvent(text, true);
  pass.callback = call->i_ci;
  ClearChain();
  BeginSlice(text);
  running.push_back({"the callback of " + text, 0});
}

void Watch(lua_State* L, lua_Debug* event) {
  const bool isCallback = pass.callback != nullptr && event->i_ci == pass.callback;
  if (event->event == LUA_HOOKRET) {
    if (isCallback) EndCallback();
    return;
  }
  if (event->event == LUA_HOOKTAILCALL || (pass.callback != nullptr && !isCallback)) return;
  if (isCallback) EndCallback();  // it ended with an error, without a return event
  lua_getinfo(L, "f", event);
  BeginCallback(L, event);
  lua_pop(L, 1);
}

}  // namespace

void OpenEventPass(lua_State* L, bool trace) {
  isTraced = trace;
  GetSdkCallbackTable(L, "VELORA");
  lua_rawsetp(L, LUA_REGISTRYINDEX, &kCallbacks);
}

void BeginPass(lua_State* L) {
  EndCallback();
  pass = {};
  pass.L = L;
}

void SetPassEvents(const std::vector<std::shared_ptr<Event>>& events) { pass.events = events; }

void EndPass(lua_State* L) {
  TraceUpTo(L, pass.events.size());
  EndCallback();
  pass = {};
}

void WatchCallbacks(lua_State* L, lua_Debug* event) {
  if (L == pass.L) Watch(L, event);
  if (!running.empty()) FollowCall(L, event);
}

void ReadLogLine(const std::string& line) {
  constexpr std::string_view kMark = "[Velora callback err] ";
  const std::size_t mark = line.find(kMark);
  if (mark == line.npos) return;
  CountError();
  if (running.empty()) {
    PrintError("error in a callback");
    return;
  }
  const std::string_view message = std::string_view(line).substr(mark + kMark.size());
  const Running& current = running.back();
  std::string text = "error in " + current.name;
  if (ChainLength() > current.firstCall) text += "\n" + ChainTraceback(current.firstCall, message);
  PrintError(text.c_str());
  if (running.size() == 1 && pass.callback != nullptr) EndCallback(message);
}

void FinishEventPass() {
  EndCallback();
  pass = {};
  for (const UnhandledEvents& row : unhandledEvents)
    Report("%s: %d event%s came without a callback", row.name.c_str(), row.count, row.count == 1 ? "" : "s");
  unhandledEvents.clear();
}

HandlerCall::HandlerCall(std::string_view function) {
  if (running.empty()) ClearChain();
  running.push_back({std::string(function) + " of the download handler", ChainLength()});
}

HandlerCall::~HandlerCall() { running.pop_back(); }

}  // namespace player
