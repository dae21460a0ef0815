// Pushes records as userdata. A userdata gets its holder last, so that a Lua error leaks nothing.
#pragma once

#include <memory>
#include <vector>

#include "binding/conversions.h"
#include "records/self.h"

namespace luavelora {

// Pushes the metatable of the class and returns true, or pushes nil and returns false if the class is not registered.
template <class Record>
bool PushMetatable(lua_State* L, const ModuleState& state) {
  return lua_rawgeti(L, LUA_REGISTRYINDEX, state.metatables[HolderOf<Record>::kClass]) == LUA_TTABLE;
}

// Pushes a new userdata of the class and returns its block, which the caller points to a holder. `pushMetatable()` does
// what PushMetatable does. Pushes nil and returns null if it fails or if the state is closed. May raise.
template <class Record, class Push>
Owned** PushWithoutHolder(lua_State* L, ModuleState& state, Push pushMetatable) {
  state.PayDebt(L);
  auto* block = static_cast<Owned**>(lua_newuserdata(L, sizeof(void*)));
  *block = nullptr;
  const bool isRegistered = pushMetatable();
  // Tested after lua_newuserdata, which may run script code and even close the state.
  if (state.closed || !isRegistered) [[unlikely]] {
    lua_pop(L, 2);
    lua_pushnil(L);
    return nullptr;
  }
  lua_setmetatable(L, -2);
  return block;
}

template <class Record>
Owned** PushWithoutHolder(lua_State* L, ModuleState& state) {
  return PushWithoutHolder<Record>(L, state, [&] { return PushMetatable<Record>(L, state); });
}

// Pushes a new userdata whose holder has a copy of `reference`. Pushes nil if `reference` is empty, the class is not
// registered or the state is closed. May raise.
template <class Record, class Push>
void PushRecord(lua_State* L, ModuleState& state, const std::shared_ptr<Record>& reference, Push pushMetatable) {
  if (reference == nullptr)
    lua_pushnil(L);
  else if (Owned** block = PushWithoutHolder<Record>(L, state, pushMetatable))
    *block = state.Create<HolderOf<Record>>(reference);
}

template <class Record>
void PushRecord(lua_State* L, ModuleState& state, const std::shared_ptr<Record>& reference) {
  PushRecord(L, state, reference, [&] { return PushMetatable<Record>(L, state); });
}

// Pushes a new table with what PushRecord pushes for each record. May raise.
template <class Record>
void PushRecordList(lua_State* L, ModuleState& state, const std::vector<std::shared_ptr<Record>>& records) {
  lua_createtable(L, TableSize(records.size()), 0);
  const bool isRegistered = PushMetatable<Record>(L, state);
  const int metatable = lua_gettop(L);
  for (std::size_t k = 0; k < records.size(); ++k) {
    PushRecord(L, state, records[k], [=] {
      lua_pushvalue(L, metatable);
      return isRegistered;
    });
    lua_rawseti(L, metatable - 1, static_cast<lua_Integer>(k + 1));
  }
  lua_pop(L, 1);
}

}  // namespace luavelora
