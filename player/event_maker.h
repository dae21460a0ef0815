// Events out of Lua values, for offline.post.
#pragma once

#include <lua.hpp>
#include <memory>

#include "platform/event.h"

namespace player {

// Builds the event that the arguments of the running function describe: its name or number, then its payload in the
// order in which the callback receives it; what is missing or nil keeps the layout's default. Makes no Lua call that
// can raise; throws ArgumentError.
std::shared_ptr<tarn::velora::Event> MakeEvent(lua_State* L);

}  // namespace player
