// The boundary of the player's Lua functions, which is the module's with argument errors added, and the checks of
// arguments. The checks throw ArgumentError and make no Lua call that can raise.
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

// An argument that cannot be used: its number, and why.
class ArgumentError : public std::invalid_argument {
 public:
  ArgumentError(int argument, const std::string& reason) : std::invalid_argument(reason), argument_(argument) {}
  int argument() const { return argument_; }

 private:
  int argument_;
};

// A function's name, as a template argument.
template <std::size_t size>
struct Name {
  constexpr Name(const char (&source)[size]) { std::copy_n(source, size, text); }
  char text[size];
};

// The lua_CFunction around a body, as luavelora::Entry is in the module. An ArgumentError becomes an error in the form
// of Lua's own, "bad argument #1 to 'post' (string expected, got nil)". The name is always known, unlike in Lua, which
// takes it from the call.
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

// The row of such a function in a registration list.
template <Name name, luavelora::Outcome (*body)(lua_State*)>
constexpr luaL_Reg Row() {
  return {name.text, Checked<name, body>};
}

// Returns "TYPE expected, got TYPE" for the value at `index`.
std::string Mismatch(lua_State* L, int index, const char* expected);

// Returns the string at `index`, zero bytes included, valid while it is on the stack. A number is not a string.
std::string_view CheckText(lua_State* L, int index);

// Stores the integer at `index` and returns true, or returns false if there is none. A string is not a number.
bool ToInteger(lua_State* L, int index, lua_Integer& value);

// Returns the integer at `index`.
lua_Integer CheckInteger(lua_State* L, int index);

}  // namespace player
