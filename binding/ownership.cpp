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
  while (first_ != nullptr) {
    Owned& owned = *first_;
    owned.Unlink();  // it may outlive its release
    owned.state_ = nullptr;
    owned.Release();
  }
  while (freeBlocks_ != nullptr) ::operator delete(std::exchange(freeBlocks_, *static_cast<void**>(freeBlocks_)));
}

void ModuleState::PayDebt(lua_State* L) {
  const auto kilobytes = static_cast<int>(debt_ / 1024);
  debt_ = 0;
  if (lua_gc(L, LUA_GCISRUNNING, 0) != 0) lua_gc(L, LUA_GCSTEP, kilobytes);
}

void* ModuleState::TakeBlock() {
  if (freeBlocks_ == nullptr) return ::operator new(kBlockSize);
  --freeCount_;
  return std::exchange(freeBlocks_, *static_cast<void**>(freeBlocks_));
}

void ModuleState::ReturnBlock(void* block) {
  if (freeCount_ == kMaxFreeBlocks) return ::operator delete(block);
  ++freeCount_;
  *static_cast<void**>(block) = std::exchange(freeBlocks_, block);
}

void ModuleState::Link(Owned& owned) {
  owned.state_ = this;
  owned.next_ = first_;
  owned.link_ = &first_;
  if (first_ != nullptr) first_->link_ = &owned.next_;
  first_ = &owned;
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
