// Reports the values that an accepted call drops or changes.
#pragma once

#include <lua.hpp>
#include <string_view>

#include "player/call_text.h"

namespace player {

// Reports the list elements that the function `name` is going to drop, or that it is going to store 0 or an empty
// string for a value of another type. The arguments must be on the stack; `text` is the description of the call. Raises
// nothing, allocates nothing in Lua and leaves the stack unchanged.
void ReportLostValues(lua_State* L, std::string_view name, const CallText& text);

}  // namespace player
