// What the player's Lua functions share: the boundary that turns C++ exceptions into Lua errors, and the tests of
// arguments, which throw ArgumentError and raise nothing.
#pragma once

#include <lua.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace player {

// An argument that cannot be used, by its number, and why.
class ArgumentError : public std::invalid_argument {
 public:
  ArgumentError(int argument, const std::string& text) : std::invalid_argument(text), argument_(argument) {}
  int argument() const { return argument_; }

 private:
  int argument_;
};

// The working part of a Lua function. It may own objects and throw whatever derives from std::exception, and so makes
// no Lua call that can raise, except in protected mode. It gives the number of results on the stack, or
// kErrorOnTop when the value on top of the stack is to be raised.
using Body = int (*)(lua_State*);
inline constexpr int kErrorOnTop = -1;

// What is left of a body that failed: nothing that needs a destructor, since raising runs none.
struct Failure {
  int argument = 0;
  char text[512] = "";
};

// Runs `body`; a negative result says that Raise is to be called.
int Run(lua_State* L, Body body, Failure& failure);

// Raises the Lua error that a failed body asked for; never returns.
int Raise(lua_State* L, const Failure& failure);

// The lua_CFunction around `body`. Everything that the body owned is gone when this raises.
template <Body body>
int Entry(lua_State* L) {
  Failure failure;
  const int results = Run(L, body, failure);
  return results >= 0 ? results : Raise(L, failure);
}

// "TYPE expected, got TYPE", for the value at `index`.
std::string Mismatch(lua_State* L, int index, const char* expected);

// The string at `index`, zero bytes included; it lives as long as the stack holds it. No number is taken for one.
std::string_view CheckText(lua_State* L, int index);

// Fetches the integer at `index` and answers true; false where there is none. No string is taken for a number.
bool ToInteger(lua_State* L, int index, lua_Integer& value);

// The integer at `index`.
lua_Integer CheckInteger(lua_State* L, int index);

}  // namespace player
