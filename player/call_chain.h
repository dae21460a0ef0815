// The chain of callers in a callback. The module calls callbacks without a message handler, so that the Lua stack is
// gone when it logs an error; this copy of it is not.
#pragma once

#include <cstddef>
#include <lua.hpp>
#include <string>
#include <string_view>

namespace player {

// Follows the calls and returns that a debug hook sees, in all coroutines. Raises nothing and allocates nothing.
void FollowCall(lua_State* L, lua_Debug* event);

// Returns the number of calls that have not returned. Beyond a bound, calls are not followed.
std::size_t ChainLength();

// Forgets all calls.
void ClearChain();

// Returns Lua's traceback of the calls from the index `first` on. `message` is that of the error: for a Lua function,
// it begins with the current position.
std::string ChainTraceback(std::size_t first, std::string_view message);

}  // namespace player
