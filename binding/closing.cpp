// The state's record and its finaliser.
#include "binding/closing.h"

#include "binding/boundary.h"

namespace luavelora {
namespace {

constexpr const char* kStateRecord = "velora.stateRecord";

Outcome Close(lua_State* L) {
  auto& record = *static_cast<StateRecord*>(lua_touserdata(L, 1));
  record.closed = true;
  record.atClose(L, record);
  while (record.first != nullptr) record.first->Release();
  return Outcome::Results(0);
}

}  // namespace

void StateRecord::Add(Owned& owned) {
  owned.next_ = first;
  owned.link_ = &first;
  if (first != nullptr) first->link_ = &owned.next_;
  first = &owned;
}

void WatchForClosing(lua_State* L, void (*atClose)(lua_State*, const StateRecord&)) {
  if (StateRecordOf(L) != nullptr) return;
  lua_rawgeti(L, LUA_REGISTRYINDEX, LUA_RIDX_MAINTHREAD);
  lua_State* mainState = lua_tothread(L, -1);
  lua_createtable(L, 0, 1);
  lua_pushcfunction(L, Entry<Close>);
  lua_setfield(L, -2, "__gc");
  *static_cast<StateRecord*>(lua_newuserdata(L, sizeof(StateRecord))) = {mainState, false, atClose, nullptr};
  lua_insert(L, -2);
  lua_setmetatable(L, -2);
  lua_setfield(L, LUA_REGISTRYINDEX, kStateRecord);
  lua_pop(L, 1);
}

StateRecord* StateRecordOf(lua_State* L) {
  lua_getfield(L, LUA_REGISTRYINDEX, kStateRecord);
  auto* record = static_cast<StateRecord*>(lua_touserdata(L, -1));
  lua_pop(L, 1);
  return record;
}

}  // namespace luavelora
