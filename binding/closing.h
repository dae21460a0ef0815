// What the module keeps of a Lua state from its start to the state's closing. Lua does not run every finaliser: not one
// whose call finds no memory, nor one of an object that is made while the state closes. What their userdata own is
// given back when the state closes.
#pragma once

#include <lua.hpp>

namespace luavelora {

// Something that userdata of one Lua state own. Touched on the thread of Lua only.
class Owned {
 public:
  Owned() = default;
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  virtual ~Owned() {
    if (link_ != nullptr) *link_ = next_;
    if (next_ != nullptr) next_->link_ = link_;
  }

  // Gives it back; called once its userdata has let go of it. Runs no Lua.
  virtual void Release() = 0;

 private:
  friend struct StateRecord;
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
};

// Makes the state's record, once, before anything else is made at the module's start. May raise.
void WatchForClosing(lua_State* L, void (*atClose)(lua_State*, const StateRecord&));

// The state's record; null before WatchForClosing. May raise.
StateRecord* StateRecordOf(lua_State* L);

}  // namespace luavelora
