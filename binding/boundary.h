// The one boundary between Lua and C++. A Lua error is a longjmp or a C++ exception, depending on how the host built
// Lua. So every function that Lua calls is an Entry around a body, and the body returns an Outcome instead of raising.
#pragma once

#include <cstdio>
#include <exception>
#include <lua.hpp>
#include <new>

namespace luavelora {

// What a body returns: how many results are on the stack, or which error to raise. Trivially destructible, so that the
// boundary may raise past it.
class [[nodiscard]] Outcome {
 public:
  static Outcome Results(int count) { return Outcome(count, nullptr); }
  // An error message that outlives the call, raised with the calling script's position in front.
  static Outcome Error(const char* text) { return Outcome(-1, text); }
  // The error value on top of the stack, raised as it is.
  static Outcome Rethrow() { return Outcome(-1, nullptr); }

  bool Failed() const { return results_ < 0; }
  int results() const { return results_; }
  const char* text() const { return text_; }

 private:
  Outcome(int results, const char* text) : results_(results), text_(text) {}

  int results_;
  const char* text_;
};

// The outcome for a bad argument: no results and no error.
inline Outcome Refusal() { return Outcome::Results(0); }

// A copy of an exception's message, so that nothing is raised while the exception is alive.
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

// Runs `body` and turns the C++ exceptions that leave it into an outcome. Only std::exception is caught, so a Lua error
// that is itself a C++ exception passes through.
template <class Body>
Outcome Guarded(lua_State* L, ErrorText& text, Body&& body) {
  try {
    return body(L);
  } catch (const std::exception& exception) {
    return Outcome::Error(text.Of(exception));
  }
}

// The lua_CFunction around a body. Whatever the body owned is gone when this raises.
template <Outcome (*body)(lua_State*)>
int Entry(lua_State* L) {
  ErrorText text;
  const Outcome outcome = Guarded(L, text, [](lua_State* state) { return body(state); });  // a lambda is inlined
  if (outcome.Failed()) [[unlikely]]
    Raise(L, outcome);
  return outcome.results();
}

// The row of a function in a registration list.
template <Outcome (*body)(lua_State*)>
constexpr luaL_Reg Row(const char* name) {
  return {name, Entry<body>};
}

// Runs `body(L)`, which leaves `results` values on the stack, in protected mode, so that the caller's owning objects
// may stay alive. Returns the status of lua_pcall; on failure the error value is on top. The body must not own anything
// across a Lua call that can raise. Needs two free stack slots; setting up the call cannot raise.
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
