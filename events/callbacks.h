// The callback slots: one per event type, kept in the callback table "VELORA" under the type number.
#pragma once

#include <iterator>

#include "binding/boundary.h"
#include "platform/binding_helpers.h"

namespace luavelora {

inline constexpr const char* kCallbackTable = "VELORA";

// Stores argument 1 in the slot when it is a function; anything else leaves the slot as it is.
template <int slot>
Outcome SetCallback(lua_State* L) {
  if (!lua_isfunction(L, 1)) return Refusal();
  GetSdkCallbackTable(L, kCallbackTable);
  lua_pushvalue(L, 1);
  lua_rawseti(L, -2, slot);
  return Outcome::Results(0);
}

// Gives the function in the slot, or no result.
template <int slot>
Outcome GetCallback(lua_State* L) {
  GetSdkCallbackTable(L, kCallbackTable);
  return Outcome::Results(lua_rawgeti(L, -1, slot) == LUA_TNIL ? 0 : 1);
}

// The rows of the 120 accessors, a pair per event.
inline constexpr luaL_Reg kCallbackAccessors[] = {
#define VELORA_EVENT(type, name, Layout) \
  {"setOn" #name, Entry<SetCallback<type>>}, {"getOn" #name, Entry<GetCallback<type>>},
#include "platform/events.def"
#undef VELORA_EVENT
};

// Types, and slots, go from 0 to one less.
inline constexpr int kEventTypes = static_cast<int>(std::size(kCallbackAccessors) / 2);

}  // namespace luavelora
