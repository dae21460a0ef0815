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
  record.ReleaseAll();
  return Outcome::Results(0);
}

// Lua makes this text outside protected mode, where a protected call fails in its message handler. Kept alive, it is
// found and not made, so that lua_pcall never raises for want of memory.
void KeepErrorText(lua_State* L) {
  lua_pushliteral(L, "error in error handling");
  lua_setfield(L, LUA_REGISTRYINDEX, "velora.errorText");
}

}  // namespace

void Owned::Unlink() {
  if (link_ != nullptr) *link_ = next_;
  if (next_ != nullptr) next_->link_ = link_;
  next_ = nullptr;
  link_ = nullptr;
}

void StateRecord::ReleaseAll() {
  while (first != nullptr) {
    Owned& owned = *first;
    owned.Unlink();  // it may outlive its release
    owned.Release();
  }
}

void StateRecord::Add(Owned& owned) {
  owned.next_ = first;
  owned.link_ = &first;
  if (first != nullptr) first->link_ = &owned.next_;
  first = &owned;
}

void WatchForClosing(lua_State* L, void (*atClose)(lua_State*, const StateRecord&)) {
  if (StateRecordOf(L) != nullptr) return;
  KeepErrorText(L);
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
