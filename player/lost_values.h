// Reports the values that an accepted call drops or changes.
#pragma once

#include <lua.hpp>
#include <string_view>

#include "player/call_text.h"

namespace player {

// To be called when the function `name`, whose call is `text`, is about to run with its arguments on the stack. Reports
// the elements of a list of strings that are dropped, and a value for which a setter stores 0 or an empty string.
// Raises nothing, allocates nothing in Lua and leaves the stack as it was.
void ReportLostValues(lua_State* L, std::string_view name, const CallText& text);

}  // namespace player
