// The one boundary between Lua and C++. A Lua error is a longjmp or a C++ exception, as the host built its Lua; so
// every function that Lua calls is an Entry around a body, and the body answers with an Outcome instead of raising.
#pragma once

#include <exception>
#include <lua.hpp>

namespace luavelora {

// What a body tells the boundary: how many results stand on the stack, or which error to raise.
// Small and trivially destructible: nothing is lost when the boundary raises.
class [[nodiscard]] Outcome {
 public:
  static Outcome Results(int count) { return Outcome(count, nullptr); }
  // An error with a text that outlives the call, raised with the calling script's position in front.
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

// A bad argument: no results, no error.
inline Outcome Refusal() { return Outcome::Results(0); }

// A fixed place for an exception's text, so that nothing is raised while the exception is alive.
class ErrorText {
 public:
  // What the Lua error for `exception` says.
  const char* Of(const std::exception& exception);

 private:
  char text_[200];
};

// Raises what a failed outcome says. Never returns.
[[noreturn]] void Raise(lua_State* L, Outcome outcome);

// Runs `body` and turns the C++ exceptions that may come out of it into an outcome. A Lua error passes through,
// also where it is a C++ exception: nothing is caught but what derives from std::exception.
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
  const Outcome outcome = Guarded(L, text, [](lua_State* state) { return body(state); });  // known when compiling
  if (outcome.Failed()) [[unlikely]]
    Raise(L, outcome);
  return outcome.results();
}

// Runs `body(L)`, which leaves `results` values on the stack, in protected mode, so that owning objects of the caller
// may stay alive. Gives Lua's status; when it is not LUA_OK the error value is on top. The body may own nothing
// across a Lua call that raises. Needs two free stack slots and, before it is called, cannot raise.
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

// Pushes one value with `push(L)` in protected mode and gives the outcome of a function whose one result it is.
template <class Push>
Outcome PushProtected(lua_State* L, Push push) {
  return Protected(L, 1, push) == LUA_OK ? Outcome::Results(1) : Outcome::Rethrow();
}

}  // namespace luavelora
