// Ownership of the objects behind the module's userdata. Finalizers free them, but Lua skips a finalizer whose call
// runs out of memory, and those of userdata created during lua_close. What these own is freed when the state closes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <lua.hpp>
#include <new>
#include <utility>

#include "binding/slab.h"

namespace luavelora {

// The module's data of one Lua state, in a userdata that is created before the module's others and so finalized last.
struct ModuleState {
  using AtClose = void(lua_State*, const ModuleState&);

  ModuleState(lua_State* main, AtClose* atCloseFunction) : mainState(main), atClose(atCloseFunction) {
    std::fill(std::begin(metatables), std::end(metatables), LUA_NOREF);
  }

  lua_State* const mainState;  // outlives every coroutine
  AtClose* const atClose;      // runs first when the state closes
  bool closed = false;         // if true, no object may be created and nothing registered

  static constexpr int kMaxClasses = 8;
  int metatables[kMaxClasses];  // registry references of the record classes' metatables

  // Creates an object in the pool of Object::kClass and returns it. It is freed by its Release or else when the state
  // closes. Returns null if the state is closed, also if the constructor has run script code that closed it.
  template <class Object, class... Arguments>
  Object* Create(Arguments&&... arguments);

  // Releases all objects.
  void ReleaseAll();

  // Tells Lua's collector that a userdata owns `bytes` of memory outside Lua. The collector does not see them and would
  // let such garbage accumulate. May run a step of the collector, and so may raise and run script code.
  void Charge(lua_State* L, std::size_t bytes) {
    debt_ += bytes;
    PayDebt(L);
  }

  // As Charge, for the objects that were created since the last step of the collector.
  void PayDebt(lua_State* L) {
    if (debt_ >= kMaxDebt) [[unlikely]]
      RunCollector(L);
  }

 private:
  static constexpr std::size_t kMaxDebt = 16384;
  void RunCollector(lua_State* L);

  // The first slabs of a type, about 32,000 small objects, are not charged: collecting so little costs more than
  // keeping it. kRecordBytes is an estimate of what the SDK's own record takes.
  static constexpr std::size_t kUnchargedSlabs = 512;
  static constexpr std::size_t kRecordBytes = 80;

  Pool pools_[kMaxClasses];
  std::size_t debt_ = 0;
};

template <class Object, class... Arguments>
Object* ModuleState::Create(Arguments&&... arguments) {
  if (closed) return nullptr;
  Pool& pool = pools_[Object::kClass];
  if (pool.open == nullptr) [[unlikely]] {
    new SlabOf<Object>(pool);
    if (pool.slabs > kUnchargedSlabs) debt_ += SlabOf<Object>::kSlots * (sizeof(Object) + kRecordBytes);
  }
  auto* slab = static_cast<SlabOf<Object>*>(pool.open);
  ReservedSlot slot(*slab);
  auto* object = new (slab->Memory(slot.number())) Object(std::forward<Arguments>(arguments)...);
  slot.Adopt(*object);
  if (!closed) return object;
  object->Release();
  return nullptr;
}

// Creates the state's ModuleState unless it exists. Call it before the module creates anything else. May raise.
void OpenModuleState(lua_State* L, ModuleState::AtClose* atClose);

// Returns the state's ModuleState, or null before OpenModuleState. Cannot raise.
ModuleState* ModuleStateOf(lua_State* L);

}  // namespace luavelora
