// What the record classes have in common: construction, finalization, conversion to strings, registration.
#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "binding/boundary.h"
#include "binding/conversions.h"
#include "binding/helpers/metatables.h"
#include "platform/binding_helpers.h"
#include "records/push.h"

namespace luavelora {

// The error messages of a class's constructor and `__tostring`.
template <class Record>
struct ClassErrors;

#define VELORA_CLASS(Record, luaName)                                                   \
  template <>                                                                           \
  struct ClassErrors<tarn::velora::Record> {                                            \
    static constexpr const char* kUnsupported = "velora." luaName " is not supported!"; \
    static constexpr const char* kNoString = "str(velora." luaName ") error.";          \
  };
#include "platform/records.def"

// Pushes a new object and returns it as the single result. `produce()` returns its record, or a reference to it; an
// empty reference is an error. The userdata is created first, so that nothing is owned while Lua may raise.
// For constructors only: they have the ModuleState as upvalue, which takes a tenth of the time of ModuleStateOf.
template <class Record, class Produce>
Outcome NewObject(lua_State* L, Produce produce) {
  auto& state = *static_cast<ModuleState*>(lua_touserdata(L, lua_upvalueindex(1)));
  Owned** block = PushWithoutHolder<Record>(L, state);
  if (block == nullptr) return Outcome::Results(1);
  auto record = produce();
  if constexpr (requires { record.get(); })
    if (record == nullptr) return Outcome::Error(ClassErrors<Record>::kUnsupported);
  *block = state.Create<HolderOf<Record>>(std::move(record));
  return Outcome::Results(1);
}

// The constructor of a class with the factories New() and New(string): the first is called if there are no arguments.
// Refuses a first argument that is neither a string nor a number.
template <class Record>
Outcome NewWithOptionalString(lua_State* L) {
  if (lua_gettop(L) == 0) return NewObject<Record>(L, [] { return Record::New(); });
  const char* text = TextArgument(L, 1);
  return text == nullptr ? Refusal() : NewObject<Record>(L, [text] { return Record::New(text); });
}

// `__gc`: frees the holder of argument 1 and finalizes the object, so that later calls see a wrong self.
template <class Record>
Outcome Collect(lua_State* L) {
  if (auto* holder = SelfAndNoMore<Record>(L)) {
    *static_cast<Owned**>(lua_touserdata(L, 1)) = nullptr;
    holder->Release();
  }
  return Outcome::Results(0);
}

// The finalizer in the metatable. Scripts cannot call it; Lua passes only userdata of the class, and none after the
// state has closed. So it needs neither the tests of the class table's `__gc` nor the boundary.
inline int Finalize(lua_State* L) {
  if (Owned* holder = std::exchange(*static_cast<Owned**>(lua_touserdata(L, 1)), nullptr)) holder->Release();
  return 0;
}

// `__tostring`: returns the string that `fill(holder, out)` stores, or an error if that returns false.
template <class Record, class Fill>
Outcome ToString(lua_State* L, Fill fill) {
  HolderOf<Record>* holder = Self<Record>(L);
  if (holder == nullptr) return Refusal();
  bool filled = false;
  const Outcome outcome = TextResult(L, [&](std::string& out) {
    const Pin pin(*holder);
    return filled = fill(*holder, out);
  });
  return filled ? outcome : Outcome::Error(ClassErrors<Record>::kNoString);
}

// `__tostring` of a class without cached fields.
template <class Record>
Outcome RecordToString(lua_State* L) {
  return ToString<Record>(L, [](HolderOf<Record>& holder, std::string& out) { return holder.record->toString(out); });
}

// Registers a class and stores its class table in the table on top of the stack. The class table has the functions of
// `rows`, which end with an empty row, and `constructor` as `new` unless it is null. May raise.
template <class Record, std::size_t count>
void RegisterClass(lua_State* L, const luaL_Reg (&rows)[count], lua_CFunction constructor) {
  using Class = tarn::velora::ClassNames<Record>;
  ModuleState& state = *ModuleStateOf(L);
  lua_createtable(L, 0, static_cast<int>(count));
  luaL_setfuncs(L, rows, 0);
  if (constructor != nullptr) {
    lua_pushlightuserdata(L, &state);
    lua_pushcclosure(L, constructor, 1);
    lua_setfield(L, -2, "new");
  }
  luaL_getmetatable(L, Class::kMetatable);
  PushMetatable<Record>(L, state);
  const bool isOurs = lua_rawequal(L, -1, -2) != 0;
  lua_pop(L, 2);
  if (!isOurs) RemoveUserTypeMetaTable(L, Class::kMetatable);  // another module's, whose userdata are no objects
  InitUserTypeMetaTable(L, Class::kMetatable);
  luaL_getmetatable(L, Class::kMetatable);
  lua_pushcfunction(L, Finalize);
  lua_setfield(L, -2, "__gc");
  lua_pushlightuserdata(L, &classKey<Record>);
  lua_rawseti(L, -2, kClassMark);
  int& reference = state.metatables[HolderOf<Record>::kClass];
  if (reference == LUA_NOREF)
    reference = luaL_ref(L, LUA_REGISTRYINDEX);
  else
    lua_rawseti(L, LUA_REGISTRYINDEX, reference);
  lua_setfield(L, -2, Class::kName);
}

}  // namespace luavelora
