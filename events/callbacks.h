// The callback slots. Each event type has one, in the callback table "VELORA" at the type's number.
#pragma once

#include <iterator>

#include "binding/boundary.h"
#include "platform/binding_helpers.h"

namespace luavelora {

inline constexpr const char* kCallbackTable = "VELORA";

// Stores argument 1 in the slot. Does nothing if it is not a function.
template <int slot>
Outcome SetCallback(lua_State* L) {
  if (!lua_isfunction(L, 1)) return Refusal();
  GetSdkCallbackTable(L, kCallbackTable);
  lua_pushvalue(L, 1);
  lua_rawseti(L, -2, slot);
  return Outcome::Results(0);
}

// Returns the function in the slot, or no result if the slot is empty.
template <int slot>
Outcome GetCallback(lua_State* L) {
  GetSdkCallbackTable(L, kCallbackTable);
  return Outcome::Results(lua_rawgeti(L, -1, slot) == LUA_TNIL ? 0 : 1);
}

// Registration rows: a setter and a getter per event.
inline constexpr luaL_Reg kCallbackAccessors[] = {
#define VELORA_EVENT(type, name, Layout) Row<SetCallback<type>>("setOn" #name), Row<GetCallback<type>>("getOn" #name),
#include "platform/events.def"
};

// Event types and slots are 0 to kEventTypes - 1.
inline constexpr int kEventTypes = static_cast<int>(std::size(kCallbackAccessors) / 2);

}  // namespace luavelora
