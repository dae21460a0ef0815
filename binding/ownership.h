// Who frees what the module's userdata own. Lua does not run every finalizer: it skips one whose call runs out of
// memory and those of objects created during lua_close. Whatever such userdata own is freed when the state closes.
#pragma once

#include <cstddef>
#include <lua.hpp>
#include <new>
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
    released_ = true;
    FreeIfDone();
  }

 protected:
  ~Owned() = default;

 private:
  friend class Pin;
  friend struct ModuleState;
  void FreeIfDone() {
    if (released_ && pins_ == 0) destroy_(*this);
  }
  void Unlink();

  void (*destroy_)(Owned&) = nullptr;  // deletes the object as its dynamic type
  Owned* next_ = nullptr;
  Owned** link_ = nullptr;  // the pointer that points to this object
  unsigned pins_ = 0;
  bool released_ = false;
};

// Keeps an object alive while the SDK works with it: the SDK may call back into scripts, which may call `__gc` on the
// same object. Must not be alive across a Lua call that can raise.
class Pin {
 public:
  explicit Pin(Owned& owned) : owned_(owned) { ++owned_.pins_; }
  Pin(const Pin&) = delete;
  Pin& operator=(const Pin&) = delete;
  ~Pin() {
    --owned_.pins_;
    owned_.FreeIfDone();
  }

 private:
  Owned& owned_;
};

// What the module keeps per Lua state, in a userdata that is created first and therefore finalized last.
struct ModuleState {
  lua_State* mainState;                             // outlives every coroutine
  void (*atClose)(lua_State*, const ModuleState&);  // runs first when the state closes
  bool closed = false;                              // once true, nothing may be owned or registered any more
  Owned* first = nullptr;

  // Creates an object that is freed by its Release or, failing that, when the state closes. Returns null if the state
  // is closed; the constructor may have run script code.
  template <class Object, class... Arguments>
  Object* Create(Arguments&&... arguments) {
    auto* object = new Object(std::forward<Arguments>(arguments)...);
    object->destroy_ = [](Owned& owned) {
      owned.Unlink();
      delete static_cast<Object*>(&owned);
    };
    if (!closed) {
      Link(*object);
      return object;
    }
    object->Release();
    return nullptr;
  }

  void ReleaseAll();

 private:
  void Link(Owned& owned);
};

// Creates the state's ModuleState, once, before the module creates anything else. May raise.
void OpenModuleState(lua_State* L, void (*atClose)(lua_State*, const ModuleState&));

// Returns the state's ModuleState, or null before OpenModuleState. Raises nothing.
ModuleState* ModuleStateOf(lua_State* L);

}  // namespace luavelora
