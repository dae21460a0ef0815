// The module's state per Lua state, and its finalizer.
#include "binding/ownership.h"

#include "binding/boundary.h"

namespace luavelora {
namespace {

// Its address is the key of the ModuleState in the registry.
char stateKey = 0;

Outcome Close(lua_State* L) {
  auto& state = *static_cast<ModuleState*>(lua_touserdata(L, 1));
  state.closed = true;
  state.atClose(L, state);
  state.ReleaseAll();
  return Outcome::Results(0);
}

// If a message handler fails, lua_pcall interns this string outside protected mode. Keeping it alive means that the
// lookup never allocates, so that lua_pcall cannot raise a memory error.
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

void ModuleState::ReleaseAll() {
  while (first != nullptr) {
    Owned& owned = *first;
    owned.Unlink();  // it may outlive its release
    owned.Release();
  }
}

void ModuleState::Link(Owned& owned) {
  owned.next_ = first;
  owned.link_ = &first;
  if (first != nullptr) first->link_ = &owned.next_;
  first = &owned;
}

void OpenModuleState(lua_State* L, void (*atClose)(lua_State*, const ModuleState&)) {
  if (ModuleStateOf(L) != nullptr) return;
  KeepErrorText(L);
  lua_rawgeti(L, LUA_REGISTRYINDEX, LUA_RIDX_MAINTHREAD);
  lua_State* mainState = lua_tothread(L, -1);
  lua_createtable(L, 0, 1);
  lua_pushcfunction(L, Entry<Close>);
  lua_setfield(L, -2, "__gc");
  new (lua_newuserdata(L, sizeof(ModuleState))) ModuleState{mainState, atClose};
  lua_pushvalue(L, -1);
  lua_rawsetp(L, LUA_REGISTRYINDEX, &stateKey);
  // The finalizer comes last: nothing can raise any more, so a state that is not registered is never closed.
  lua_insert(L, -2);
  lua_setmetatable(L, -2);
  lua_pop(L, 2);
}

ModuleState* ModuleStateOf(lua_State* L) {
  lua_rawgetp(L, LUA_REGISTRYINDEX, &stateKey);
  auto* state = static_cast<ModuleState*>(lua_touserdata(L, -1));
  lua_pop(L, 1);
  return state;
}

}  // namespace luavelora
