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

void ModuleState::ReleaseAll() {
  for (Pool& pool : pools_)
    for (Slab** list : {&pool.open, &pool.full})
      while (*list != nullptr) (*list)->Close();
}

void ModuleState::RunCollector(lua_State* L) {
  const auto kilobytes = static_cast<int>(debt_ / 1024);
  debt_ = 0;
  if (lua_gc(L, LUA_GCISRUNNING, 0) != 0) lua_gc(L, LUA_GCSTEP, kilobytes);
}

void OpenModuleState(lua_State* L, ModuleState::AtClose* atClose) {
  if (ModuleStateOf(L) != nullptr) return;
  KeepErrorText(L);
  lua_rawgeti(L, LUA_REGISTRYINDEX, LUA_RIDX_MAINTHREAD);
  lua_State* mainState = lua_tothread(L, -1);
  lua_createtable(L, 0, 1);
  lua_pushcfunction(L, Entry<Close>);
  lua_setfield(L, -2, "__gc");
  new (lua_newuserdata(L, sizeof(ModuleState))) ModuleState(mainState, atClose);
  lua_pushvalue(L, -1);
  lua_rawsetp(L, LUA_REGISTRYINDEX, &stateKey);
  // The finalizer is set last, when nothing can raise any more, so that it never runs for a state that is not
  // registered.
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
