// The log line of an error that a script's callback raised.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Logs the error value on top of the stack, which stays there. Allocates nothing in Lua; a non-string error value
// is described by its type. If the log library throws, the line is lost.
void LogCallbackError(lua_State* L);

// The same for an error message.
void LogCallbackError(const char* text);

}  // namespace luavelora
