// The boundary of the player's Lua functions: the module's, with argument errors added. Check functions throw
// ArgumentError and make no Lua call that can raise.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <lua.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

#include "binding/boundary.h"

namespace player {

// The error for a bad argument: its number and the reason.
class ArgumentError : public std::invalid_argument {
 public:
  ArgumentError(int argument, const std::string& reason) : std::invalid_argument(reason), argument_(argument) {}
  int argument() const { return argument_; }

 private:
  int argument_;
};

// A string that can be a template argument.
template <std::size_t size>
struct Name {
  constexpr Name(const char (&source)[size]) { std::copy_n(source, size, text); }
  char text[size];
};

// The lua_CFunction that calls `body`, as luavelora::Entry in the module. Raises an ArgumentError in the form of
// luaL_argerror, "bad argument #1 to 'post' (string expected, got nil)". Does not call it, since it takes the
// function's name from the call, which may have none.
template <Name name, luavelora::Outcome (*body)(lua_State*)>
int Checked(lua_State* L) {
  int argument = 0;
  char reason[512];
  luavelora::ErrorText text;
  const luavelora::Outcome outcome = luavelora::Guarded(L, text, [&](lua_State* state) {
    try {
      return body(state);
    } catch (const ArgumentError& error) {
      argument = error.argument();
      std::snprintf(reason, sizeof reason, "%s", error.what());
      return luavelora::Outcome::Error(reason);
    }
  });
  if (argument != 0) return luaL_error(L, "bad argument #%d to '%s' (%s)", argument, name.text, reason);
  if (outcome.Failed()) luavelora::Raise(L, outcome);
  return outcome.results();
}

// Returns the row of such a function in a registration list.
template <Name name, luavelora::Outcome (*body)(lua_State*)>
constexpr luaL_Reg Row() {
  return {name.text, Checked<name, body>};
}

// Returns "TYPE expected, got TYPE" for the value at `index`.
std::string TypeMismatch(lua_State* L, int index, const char* expected);

// Returns the string at `index`, which may contain zero bytes. Valid while it is on the stack. Numbers are not
// converted.
std::string_view CheckString(lua_State* L, int index);

// Stores the integer at `index` and returns true, or returns false if there is none. Strings are not converted.
bool ToInteger(lua_State* L, int index, lua_Integer& value);

// Returns the integer at `index`.
lua_Integer CheckInteger(lua_State* L, int index);

}  // namespace player
