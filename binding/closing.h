// What the module keeps of a Lua state from its start to the state's closing. Lua does not run every finaliser: not one
// whose call finds no memory, nor one of an object that is made while the state closes. What their userdata own is
// given back when the state closes.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Something that a userdata of one Lua state owns. Touched on the thread of Lua only. While a Pin on it lives, it can
// be released, by a `__gc` that a script calls by hand or by the closing, and is freed when the last Pin goes.
class Owned {
 public:
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  // Frees the object, now or when its last Pin goes. Runs no Lua.
  void Release() {
    released_ = true;
    FreeIfDone();
  }

 protected:
  // `destroy` deletes the object as what it is.
  explicit Owned(void (*destroy)(Owned&)) : destroy_(destroy) {}
  ~Owned() { Unlink(); }

 private:
  friend class Pin;
  friend struct StateRecord;
  void FreeIfDone() {
    if (released_ && pins_ == 0) destroy_(*this);
  }
  void Unlink();

  void (*destroy_)(Owned&);
  Owned* next_ = nullptr;
  Owned** link_ = nullptr;  // what points here
  unsigned pins_ = 0;
  bool released_ = false;
};

// Keeps an object alive while the SDK works with it: the SDK may call back into scripts, and those may call `__gc` on
// the very object in hand. Not to be alive across a Lua call that can raise.
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

// One per Lua state, in a userdata that is finalised after all that were made later.
struct StateRecord {
  lua_State* mainState;                             // outlives every coroutine
  bool closed;                                      // from the closing on, nothing new may be owned or registered
  void (*atClose)(lua_State*, const StateRecord&);  // runs first when the state closes
  Owned* first;

  void Add(Owned& owned);
  void ReleaseAll();
};

// Makes the state's record, once, before anything else is made at the module's start. May raise.
void WatchForClosing(lua_State* L, void (*atClose)(lua_State*, const StateRecord&));

// The state's record; null before WatchForClosing. May raise.
StateRecord* StateRecordOf(lua_State* L);

}  // namespace luavelora
