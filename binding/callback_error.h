// Logs the errors that a script's callbacks raise.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Logs the error value on top of the stack and leaves it there. A value that is neither a string nor a number is
// described by its type. Allocates nothing in Lua. If the log library throws, the line is lost.
void LogCallbackError(lua_State* L);

// The same for an error message.
void LogCallbackError(const char* text);

}  // namespace luavelora
