// The class of the records in controller events.
#pragma once

struct lua_State;

namespace luavelora {

// Stores the class table in the module table, which is on top of the stack and stays there. May raise.
void RegisterPadEvent(lua_State* L);

}  // namespace luavelora
