// What the module keeps of a Lua state from its start to the state's closing. Lua does not run every finaliser: not one
// whose call finds no memory, nor one of an object that is made while the state closes. What their userdata own is
// given back when the state closes.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Something that a userdata of one Lua state owns. Touched on the thread of Lua only.
class Owned {
 public:
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

 protected:
  // `release` gives the object back; it is called when the state closes and may leave that to somebody who still works
  // with the object. It runs no Lua.
  explicit Owned(void (*release)(Owned&)) : release_(release) {}
  ~Owned() { Unlink(); }

 private:
  friend struct StateRecord;
  void Unlink();

  void (*release_)(Owned&);
  Owned* next_ = nullptr;
  Owned** link_ = nullptr;  // what points here
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
