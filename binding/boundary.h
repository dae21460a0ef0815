// The boundary between Lua and C++. Every function that Lua calls, except objects' finalizers, is an Entry around a
// body, and the body returns an Outcome instead of raising an error. Depending on how the host built Lua, a Lua error
// is a C++ exception or a longjmp, which runs no destructors.
#pragma once

#include <cstdio>
#include <exception>
#include <lua.hpp>
#include <new>

namespace luavelora {

// What a body returns: how many results are on the stack, or which error to raise. Trivially destructible, so that it
// may be alive while the error is raised.
class [[nodiscard]] Outcome {
 public:
  // Returns a success with the `count` values on top of the stack as results.
  static Outcome Results(int count) { return Outcome(count, nullptr); }
  // Returns an error with the message `text` after the calling script's position. `text` must outlive the call.
  static Outcome Error(const char* text) { return Outcome(-1, text); }
  // Returns an error whose value is on top of the stack and is raised unchanged.
  static Outcome Rethrow() { return Outcome(-1, nullptr); }

  bool Failed() const { return results_ < 0; }
  int results() const { return results_; }
  // Returns the message of Error, null for Rethrow.
  const char* text() const { return text_; }

 private:
  Outcome(int results, const char* text) : results_(results), text_(text) {}

  int results_;
  const char* text_;
};

// Returns the outcome for a bad argument: no results and no error.
inline Outcome Refusal() { return Outcome::Results(0); }

// Holds a copy of an exception's message, so that the exception is destroyed before the Lua error is raised.
class ErrorText {
 public:
  // Returns the message of the Lua error for `exception`; valid while this object lives.
  const char* Of(const std::exception& exception) {
    if (dynamic_cast<const std::bad_alloc*>(&exception) != nullptr) return "not enough memory";
    std::snprintf(text_, sizeof text_, "%s", exception.what());
    return text_;
  }

 private:
  char text_[200];
};

// Raises the error of a failed outcome.
[[noreturn]] inline void Raise(lua_State* L, Outcome outcome) {
  if (outcome.text() == nullptr)
    lua_error(L);
  else
    luaL_error(L, "%s", outcome.text());
  std::terminate();  // not reached: both raise
}

// Runs `body(L)` and returns its outcome. If a std::exception leaves it, returns an error with the exception's message,
// which `text` holds. Catches nothing else, so that a Lua error that is a C++ exception passes through.
template <class Body>
Outcome Guarded(lua_State* L, ErrorText& text, Body&& body) {
  try {
    return body(L);
  } catch (const std::exception& exception) {
    return Outcome::Error(text.Of(exception));
  }
}

// The lua_CFunction around a body. Raises the body's error after everything that the body owned is destroyed.
template <Outcome (*body)(lua_State*)>
int Entry(lua_State* L) {
  ErrorText text;
  const Outcome outcome = Guarded(L, text, [](lua_State* state) { return body(state); });  // a lambda can be inlined
  if (outcome.Failed()) [[unlikely]]
    Raise(L, outcome);
  return outcome.results();
}

// Returns the row of a function in a registration list.
template <Outcome (*body)(lua_State*)>
constexpr luaL_Reg Row(const char* name) {
  return {name, Entry<body>};
}

// Runs `body(L)` in protected mode and returns the status of lua_pcall. On success, the `results` values that the body
// pushed are on top of the stack; on failure, the error value is. The caller may own objects during the call, but the
// body must not own anything across a Lua call that can raise. Needs two free stack slots; the start of the call cannot
// raise.
template <class Body>
int Protected(lua_State* L, int results, Body& body) {
  lua_pushcfunction(L, [](lua_State* state) {
    Body& protectedBody = *static_cast<Body*>(lua_touserdata(state, 1));
    lua_settop(state, 0);
    ErrorText text;
    const Outcome outcome = Guarded(state, text, [&](lua_State* inner) {
      protectedBody(inner);
      return Outcome::Results(lua_gettop(inner));
    });
    if (outcome.Failed()) [[unlikely]]
      Raise(state, outcome);
    return outcome.results();
  });
  lua_pushlightuserdata(L, &body);
  return lua_pcall(L, 1, results, 0);
}

// Pushes one value with `push(L)` in protected mode and returns it as the function's single result.
template <class Push>
Outcome PushProtected(lua_State* L, Push push) {
  return Protected(L, 1, push) == LUA_OK ? Outcome::Results(1) : Outcome::Rethrow();
}

}  // namespace luavelora
