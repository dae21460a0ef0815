// The chain of active calls in a callback, for tracebacks. The module calls callbacks without a message handler, so the
// Lua stack is already unwound when it logs an error. This is a copy of it.
#pragma once

#include <cstddef>
#include <lua.hpp>
#include <string>
#include <string_view>

namespace player {

// Updates the chain; to be called by the debug hook for calls and returns in all coroutines. Raises nothing and
// allocates nothing.
void FollowCall(lua_State* L, lua_Debug* event);

// Returns the number of active calls. Calls beyond the 100th are not counted.
std::size_t ChainLength();

// Removes all calls.
void ClearChain();

// Returns a traceback, in Lua's format, of the calls from index `first` on. `message` is the error message; if it
// begins with a position, this is the current line of the innermost call.
std::string ChainTraceback(std::size_t first, std::string_view message);

}  // namespace player
