// Who frees what the module's userdata own. Lua does not run every finalizer: it skips one whose call runs out of
// memory and those of objects created during lua_close. Whatever such userdata own is freed when the state closes.
#pragma once

#include <cstddef>
#include <lua.hpp>
#include <new>
#include <type_traits>
#include <utility>

namespace luavelora {

// An object that a userdata of one Lua state owns, used on the thread of Lua only. While a Pin on it lives it can be
// released (by a script that calls `__gc`, or by lua_close) but is not freed until the last Pin is gone.
class Owned {
 public:
  Owned() = default;
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  // Frees the object, now or when its last Pin is gone. Runs no Lua.
  void Release() {
    uses_ |= kReleased;
    FreeIfDone();
  }

 protected:
  ~Owned() = default;

 private:
  friend class Pin;
  friend struct ModuleState;
  void FreeIfDone() {
    if (uses_ == kReleased) [[unlikely]]
      destroy_(*this);
  }
  void Unlink();

  struct ModuleState* state_ = nullptr;  // null once the state is closed
  void (*destroy_)(Owned&) = nullptr;    // deletes the object as its dynamic type
  Owned* next_ = nullptr;
  Owned** link_ = nullptr;  // the pointer that points to this object
  static constexpr unsigned kReleased = 1;
  static constexpr unsigned kPin = 2;
  unsigned uses_ = 0;  // kPin for each Pin, and kReleased
};

// Keeps an object alive while the SDK works with it: the SDK may call back into scripts, which may call `__gc` on the
// same object. Must not be alive across a Lua call that can raise.
class Pin {
 public:
  explicit Pin(Owned& owned) : owned_(owned) { owned_.uses_ += Owned::kPin; }
  Pin(const Pin&) = delete;
  Pin& operator=(const Pin&) = delete;
  ~Pin() {
    owned_.uses_ -= Owned::kPin;
    owned_.FreeIfDone();
  }

 private:
  Owned& owned_;
};

// What the module keeps per Lua state, in a userdata that is created first and therefore finalized last.
struct ModuleState {
  using AtClose = void(lua_State*, const ModuleState&);

  ModuleState(lua_State* main, AtClose* atCloseFunction) : mainState(main), atClose(atCloseFunction) {}

  lua_State* const mainState;  // outlives every coroutine
  AtClose* const atClose;      // runs first when the state closes
  bool closed = false;         // once true, nothing may be owned or registered any more

  // Creates an object that is freed by its Release or, failing that, when the state closes. Returns null if the state
  // is closed, which the constructor may have caused, since it may run script code.
  template <class Object, class... Arguments>
  Object* Create(Arguments&&... arguments);

  void ReleaseAll();

  // Tells Lua's collector of `bytes` of memory that a userdata keeps alive, which it cannot see: without this it would
  // let garbage grow that looks small. May run a step of the collector, and so may raise and run script code.
  void Charge(lua_State* L, std::size_t bytes) {
    debt_ += bytes;
    if (debt_ >= kMaxDebt) PayDebt(L);
  }

 private:
  friend class Owned;

  static constexpr std::size_t kMaxDebt = 16384;
  void PayDebt(lua_State* L);

  // Blocks for small objects. Freed ones are kept for the next, as many as a busy game needs between two collections.
  static constexpr std::size_t kBlockSize = 56;
  static constexpr std::size_t kMaxFreeBlocks = 4096;
  void* TakeBlock();
  void ReturnBlock(void* block);
  void Link(Owned& owned);

  Owned* first_ = nullptr;
  void* freeBlocks_ = nullptr;  // each points to the next
  std::size_t freeCount_ = 0;
  std::size_t debt_ = 0;
};

template <class Object, class... Arguments>
Object* ModuleState::Create(Arguments&&... arguments) {
  constexpr bool isSmall = sizeof(Object) <= kBlockSize;
  Object* object;
  if constexpr (isSmall) {
    static_assert(std::is_nothrow_constructible_v<Object, Arguments...>);
    object = new (TakeBlock()) Object(std::forward<Arguments>(arguments)...);
  } else {
    object = new Object(std::forward<Arguments>(arguments)...);
  }
  object->destroy_ = [](Owned& owned) {
    auto* self = static_cast<Object*>(&owned);
    owned.Unlink();
    if constexpr (isSmall) {
      ModuleState* state = owned.state_;
      self->~Object();
      state != nullptr ? state->ReturnBlock(self) : ::operator delete(self);
    } else {
      delete self;
    }
  };
  if (closed) {
    object->Release();
    return nullptr;
  }
  Link(*object);
  return object;
}

// Creates the state's ModuleState, once, before the module creates anything else. May raise.
void OpenModuleState(lua_State* L, ModuleState::AtClose* atClose);

// Returns the state's ModuleState, or null before OpenModuleState. Raises nothing.
ModuleState* ModuleStateOf(lua_State* L);

}  // namespace luavelora
