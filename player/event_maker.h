// Builds events from Lua values, for offline.post.
#pragma once

#include <lua.hpp>
#include <memory>

#include "platform/event.h"

namespace player {

// Returns the event that the arguments of the running function describe: its name or number, then its payload in the
// order in which the callback receives it. A missing or nil value keeps the layout's default. Throws ArgumentError.
// Makes no Lua call that can raise.
std::shared_ptr<tarn::velora::Event> MakeEvent(lua_State* L);

}  // namespace player
