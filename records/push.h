// Pushing records as userdata. A userdata is complete before it owns anything, so that a Lua error loses nothing.
#pragma once

#include <memory>
#include <vector>

#include "binding/conversions.h"
#include "records/self.h"

namespace luavelora {

// Pushes a new userdata of the class that has no holder yet, and is therefore no object, and returns its block. Pushes
// nil and returns null if the state is closing or the class is not registered. May raise.
template <class Record>
Owned** PushWithoutHolder(lua_State* L, const ModuleState& state) {
  auto* block = static_cast<Owned**>(lua_newuserdata(L, sizeof(Owned*)));
  *block = nullptr;
  // Tested now, since creating the userdata may have run script code, and even the closing.
  if (state.closed || lua_rawgetp(L, LUA_REGISTRYINDEX, &kClassKey<Record>) != LUA_TTABLE) {
    lua_settop(L, -(state.closed ? 1 : 2) - 1);
    lua_pushnil(L);
    return nullptr;
  }
  lua_setmetatable(L, -2);
  return block;
}

// Pushes a userdata with a reference of its own to the record. Pushes nil if `reference` is empty or if no userdata can
// own one. May raise.
template <class Record>
void PushRecord(lua_State* L, ModuleState& state, const std::shared_ptr<Record>& reference) {
  if (reference == nullptr)
    lua_pushnil(L);
  else if (Owned** block = PushWithoutHolder<Record>(L, state))
    *block = state.Create<HolderOf<Record>>(reference);
}

// Pushes a new table with a userdata for each record, nil for an empty reference. May raise.
template <class Record>
void PushRecordList(lua_State* L, ModuleState& state, const std::vector<std::shared_ptr<Record>>& records) {
  lua_createtable(L, TableSize(records.size()), 0);
  for (std::size_t k = 0; k < records.size(); ++k) {
    PushRecord(L, state, records[k]);
    lua_rawseti(L, -2, static_cast<lua_Integer>(k + 1));
  }
}

}  // namespace luavelora
