// lua_Debug::i_ci identifies a call: Lua uses one CallInfo per level of a coroutine's stack. If a script catches an
// error, calls end without return events; they are removed when their caller calls again or returns. A tail call takes
// the level of its caller after the hook has run.
#include "player/call_chain.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace player {
namespace {

struct Call {
  lua_State* L;
  const void* frame;
  int line;  // 0 if unknown
  lua_Debug info;
  char name[64];  // a copy, since `info.name` may be collected before the error is logged
};

constexpr std::size_t kMaxCalls = 100;
Call chain[kMaxCalls];
std::size_t length = 0;

// Returns the index of the newest call with this frame, or `length` if there is none.
std::size_t Find(lua_State* L, const void* frame) {
  for (std::size_t i = length; i > 0; --i)
    if (chain[i - 1].L == L && chain[i - 1].frame == frame) return i - 1;
  return length;
}

// Removes the calls above `caller`, which makes a new call, and stores the caller's line.
void ReturnTo(lua_State* L, lua_Debug& caller) {
  const std::size_t index = Find(L, caller.i_ci);
  if (index == length) return;
  length = index + 1;
  lua_getinfo(L, "l", &caller);
  chain[index].line = caller.currentline;
}

void Add(lua_State* L, lua_Debug* event, const void* frame) {
  if (length == kMaxCalls) return;
  lua_getinfo(L, "nS", event);
  Call& call = chain[length++];
  call.L = L;
  call.frame = frame;
  call.line = 0;
  call.info = *event;
  const std::size_t size = event->name == nullptr ? 0 : std::min(std::strlen(event->name), sizeof call.name - 1);
  std::copy_n(event->name, size, call.name);
  call.name[size] = '\0';
}

std::string FunctionName(const Call& call) {
  const lua_Debug& info = call.info;
  const std::string name = std::string(" '") + call.name + "'";
  if (std::strcmp(info.namewhat, "global") == 0) return "function" + name;
  if (*info.namewhat != '\0') return info.namewhat + name;
  if (*info.what == 'm') return "main chunk";
  if (*info.what == 'C') return "?";
  return std::string("function <") + info.short_src + ":" + std::to_string(info.linedefined) + ">";
}

// Returns the line in a message that begins with "SOURCE:LINE:", else 0.
int LineOfError(std::string_view message, const char* source) {
  if (!message.starts_with(source)) return 0;
  message.remove_prefix(std::strlen(source));
  int line = 0;
  char colon = '\0';
  return std::sscanf(std::string(message).c_str(), ":%d%c", &line, &colon) == 2 && colon == ':' ? line : 0;
}

}  // namespace

void FollowCall(lua_State* L, lua_Debug* event) {
  lua_Debug caller;
  if (event->event == LUA_HOOKRET) {
    length = Find(L, event->i_ci);
  } else if (lua_getstack(L, 1, &caller) == 0) {
    Add(L, event, event->i_ci);  // a coroutine begins
  } else if (event->event == LUA_HOOKTAILCALL) {
    length = Find(L, caller.i_ci);
    Add(L, event, caller.i_ci);
  } else {
    ReturnTo(L, caller);
    Add(L, event, event->i_ci);
  }
}

std::size_t ChainLength() { return length; }

void ClearChain() { length = 0; }

std::string ChainTraceback(std::size_t first, std::string_view message) {
  std::string text = "stack traceback:";
  if (length == kMaxCalls) text += "\n\t...";
  for (std::size_t i = length; i > first; --i) {
    const Call& call = chain[i - 1];
    const int line = i == length && length < kMaxCalls ? LineOfError(message, call.info.short_src) : call.line;
    text += std::string("\n\t") + call.info.short_src + ":";
    if (line > 0) text += std::to_string(line) + ":";
    text += " in " + FunctionName(call);
    if (call.info.event == LUA_HOOKTAILCALL) text += "\n\t(...tail calls...)";
  }
  return text;
}

}  // namespace player
