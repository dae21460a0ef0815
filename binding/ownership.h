// Who frees what the module's userdata own. Lua does not run every finalizer: it skips one whose call runs out of
// memory and those of objects created during lua_close. Whatever such userdata own is freed when the state closes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <lua.hpp>
#include <new>
#include <utility>

#include "binding/slab.h"

namespace luavelora {

// What the module keeps per Lua state, in a userdata that is created first and therefore finalized last.
struct ModuleState {
  using AtClose = void(lua_State*, const ModuleState&);

  ModuleState(lua_State* main, AtClose* atCloseFunction) : mainState(main), atClose(atCloseFunction) {
    std::fill(std::begin(metatables), std::end(metatables), LUA_NOREF);
  }

  lua_State* const mainState;  // outlives every coroutine
  AtClose* const atClose;      // runs first when the state closes
  bool closed = false;         // once true, nothing may be owned or registered any more

  static constexpr int kMaxClasses = 8;
  int metatables[kMaxClasses];  // of the record classes: their references in the registry

  // Creates an object of the class Object::kClass that is freed by its Release or, failing that, when the state closes.
  // Returns null if the state is closed, which the constructor may have caused, since it may run script code.
  template <class Object, class... Arguments>
  Object* Create(Arguments&&... arguments);

  void ReleaseAll();

  // Tells Lua's collector of `bytes` of memory that a userdata keeps alive, which it cannot see: without this it would
  // let garbage grow that looks small. May run a step of the collector, and so may raise and run script code.
  void Charge(lua_State* L, std::size_t bytes) {
    debt_ += bytes;
    PayDebt(L);
  }

  // As Charge, for the objects that were created since the last call.
  void PayDebt(lua_State* L) {
    if (debt_ >= kMaxDebt) [[unlikely]]
      RunCollector(L);
  }

 private:
  static constexpr std::size_t kMaxDebt = 16384;
  void RunCollector(lua_State* L);

  // A type's first slabs, some 32,000 small objects, are not charged: so much garbage costs less than its collection.
  // The SDK's own record is charged with a guess.
  static constexpr std::size_t kUnchargedSlabs = 512;
  static constexpr std::size_t kRecordBytes = 80;

  Pool pools_[kMaxClasses];
  std::size_t debt_ = 0;
};

template <class Object, class... Arguments>
Object* ModuleState::Create(Arguments&&... arguments) {
  Pool& pool = pools_[Object::kClass];
  if (pool.open == nullptr) [[unlikely]] {
    new SlabOf<Object>(pool);
    if (pool.slabs > kUnchargedSlabs) debt_ += SlabOf<Object>::kSlots * (sizeof(Object) + kRecordBytes);
  }
  auto* slab = static_cast<SlabOf<Object>*>(pool.open);
  const unsigned slot = slab->TakeSlot();
  Object* object;
  try {
    object = new (slab->Memory(slot)) Object(std::forward<Arguments>(arguments)...);
  } catch (...) {
    slab->FreeSlot(slot);
    throw;
  }
  slab->Adopt(*object, slot);
  if (!closed) return object;
  object->Release();
  return nullptr;
}

// Creates the state's ModuleState, once, before the module creates anything else. May raise.
void OpenModuleState(lua_State* L, ModuleState::AtClose* atClose);

// Returns the state's ModuleState, or null before OpenModuleState. Raises nothing.
ModuleState* ModuleStateOf(lua_State* L);

}  // namespace luavelora
