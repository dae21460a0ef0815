// The module looks at the events in order, each with its slot in the table of callbacks, and calls the function that is
// in it. Between two callbacks no script runs. So, when a function is called that is in the slot of an event of the
// pass, the slots tell which events before it had no callback.
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

// What runs: a callback, and download handlers that it calls.
struct Running {
  std::string name;
  std::size_t firstCall;  // in the chain of calls
};

struct Pass {
  lua_State* L = nullptr;  // null outside of a pass
  std::vector<std::shared_ptr<Event>> events;
  std::size_t next = 0;            // the first event that the module has not looked at
  const void* callback = nullptr;  // identifies the call of the running callback
};

// Events of one name that came without a callback.
struct Unheard {
  std::string name;
  int count;
};

bool isTraced = false;
Pass pass;
std::vector<Running> running;
std::vector<Unheard> unheard;

// Its address is the registry key of the table of callbacks.
constexpr char kCallbacks = 0;

constexpr int kEventTypes = 0
#define VELORA_EVENT(type, name, Layout) +1
#include "platform/events.def"
    ;

bool IsKnown(const Event& event) { return event.type >= 0 && event.type < kEventTypes; }

// Pushes the table of callbacks and the function for the event. Returns the function's type.
int PushCallback(lua_State* L, const Event& event) {
  lua_rawgetp(L, LUA_REGISTRYINDEX, &kCallbacks);
  return lua_rawgeti(L, -1, event.type);
}

bool HasCallback(lua_State* L, const Event& event) {
  const bool has = PushCallback(L, event) != LUA_TNIL;
  lua_pop(L, 2);
  return has;
}

// Whether the function on top of the stack is the event's callback.
bool IsCallback(lua_State* L, const Event& event) {
  if (!IsKnown(event)) return false;
  PushCallback(L, event);
  const bool same = lua_rawequal(L, -1, -3) != 0;
  lua_pop(L, 2);
  return same;
}

void CountUnheard(const std::string& text) {
  const std::string name = text.substr(0, text.find('('));
  for (Unheard& row : unheard) {
    if (row.name != name) continue;
    ++row.count;
    return;
  }
  unheard.push_back({name, 1});
}

// Shows the event, to which the module has come.
void Show(const std::string& text, bool heard) {
  if (isTraced) std::fprintf(stderr, "[event] %s%s\n", text.c_str(), heard ? "" : ", no callback");
  MarkPoint(Track::kEvents, heard ? text : text + ", no callback");
  if (!heard) CountUnheard(text);
}

void ShowUpTo(lua_State* L, std::size_t end) {
  for (; pass.next < end; ++pass.next) {
    const Event& event = *pass.events[pass.next];
    Show(EventText(event), HasCallback(L, event));
  }
}

void EndCallback(std::string_view error = {}) {
  if (pass.callback != nullptr) EndSlice(error);
  pass.callback = nullptr;
  running.clear();
}

// If the function on top of the stack, which is being called, is the callback of an event, begins it.
void BeginCallback(lua_State* L, lua_Debug* call) {
  std::size_t index = pass.next;
  while (index < pass.events.size() && !IsCallback(L, *pass.events[index])) ++index;
  if (index == pass.events.size()) return;
  ShowUpTo(L, index);
  const std::string text = EventText(*pass.events[pass.next++]);
  Show(text, true);
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
  if (isCallback) EndCallback();  // the hook has not seen its end
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

void TakeEvents(const std::vector<std::shared_ptr<Event>>& events) { pass.events = events; }

void EndPass(lua_State* L) {
  ShowUpTo(L, pass.events.size());
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
    Complain("error in a callback");
    return;
  }
  const std::string_view message = std::string_view(line).substr(mark + kMark.size());
  const Running& current = running.back();
  std::string text = "error in " + current.name;
  if (ChainLength() > current.firstCall) text += "\n" + ChainTraceback(current.firstCall, message);
  Complain(text.c_str());
  if (running.size() == 1 && pass.callback != nullptr) EndCallback(message);
}

void FinishEventPass() {
  EndCallback();
  pass = {};
  for (const Unheard& row : unheard)
    Report("%s: %d event%s came without a callback", row.name.c_str(), row.count, row.count == 1 ? "" : "s");
  unheard.clear();
}

HandlerCall::HandlerCall(std::string_view function) {
  if (running.empty()) ClearChain();
  running.push_back({std::string(function) + " of the download handler", ChainLength()});
}

HandlerCall::~HandlerCall() { running.pop_back(); }

}  // namespace player
