// The boundary and the argument tests of the player's Lua functions.
#include "player/arguments.h"

#include <cstdio>
#include <exception>
#include <new>

namespace player {
namespace {

int Keep(Failure& failure, int argument, const char* text) {
  failure.argument = argument;
  std::snprintf(failure.text, sizeof failure.text, "%s", text);
  return kErrorOnTop;
}

}  // namespace

// A Lua error that is a C++ exception passes through: it does not derive from std::exception.
int Run(lua_State* L, Body body, Failure& failure) {
  try {
    return body(L);
  } catch (const ArgumentError& error) {
    return Keep(failure, error.argument(), error.what());
  } catch (const std::bad_alloc&) {
    return Keep(failure, 0, "not enough memory");
  } catch (const std::exception& error) {
    return Keep(failure, 0, error.what());
  }
}

int Raise(lua_State* L, const Failure& failure) {
  if (failure.text[0] == '\0') return lua_error(L);
  if (failure.argument == 0) return luaL_error(L, "%s", failure.text);
  return luaL_argerror(L, failure.argument, failure.text);
}

std::string Mismatch(lua_State* L, int index, const char* expected) {
  const int type = lua_type(L, index);
  if (type == LUA_TNUMBER && std::string_view(expected) == "integer") return "number has no integer representation";
  return std::string(expected) + " expected, got " + lua_typename(L, type);
}

std::string_view CheckText(lua_State* L, int index) {
  if (lua_type(L, index) != LUA_TSTRING) throw ArgumentError(index, Mismatch(L, index, "string"));
  std::size_t length = 0;
  const char* text = lua_tolstring(L, index, &length);
  return {text, length};
}

bool ToInteger(lua_State* L, int index, lua_Integer& value) {
  int isInteger = 0;
  if (lua_type(L, index) == LUA_TNUMBER) value = lua_tointegerx(L, index, &isInteger);
  return isInteger != 0;
}

lua_Integer CheckInteger(lua_State* L, int index) {
  lua_Integer value = 0;
  if (!ToInteger(L, index, value)) throw ArgumentError(index, Mismatch(L, index, "integer"));
  return value;
}

}  // namespace player
