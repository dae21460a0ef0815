// The accessor families of the records that are reached through virtual operations. A family is a struct with a
// getter and a setter template over the record's operation; a field is then one row.
#pragma once

#include <type_traits>

#include "records/convention.h"

namespace luavelora {

template <class Operation>
struct RecordOfOperation;
template <class Record, class Result, class... Parameters>
struct RecordOfOperation<Result (Record::*)(Parameters...)> {
  using Type = Record;
};

// The record whose virtual operation `operation` is.
template <auto operation>
using RecordOf = typename RecordOfOperation<decltype(operation)>::Type;

// Calls `operation` on the holder's record, which cannot go away meanwhile.
template <auto operation, class... Arguments>
auto CallOnRecord(HolderOf<RecordOf<operation>>& holder, Arguments&&... arguments) {
  const Pin pin(holder);
  return ((**holder.record).*operation)(std::forward<Arguments>(arguments)...);
}

namespace family {

// A number or boolean: `push` gives it to Lua, `read` takes argument 2, 0 or false where there is none.
template <auto push, auto read>
struct Scalar {
  template <auto get>
  static Outcome Get(lua_State* L) {
    auto* holder = Self<RecordOf<get>>(L);
    if (holder == nullptr) return Refusal();
    push(L, CallOnRecord<get>(*holder));
    return Outcome::Results(1);
  }

  template <auto set>
  static Outcome Set(lua_State* L) {
    auto* holder = Self<RecordOf<set>>(L);
    if (holder != nullptr) CallOnRecord<set>(*holder, read(L, 2));
    return Outcome::Results(0);
  }
};

inline void PushInteger(lua_State* L, std::int64_t value) { lua_pushinteger(L, value); }
inline void PushNumber(lua_State* L, double value) { lua_pushnumber(L, value); }
inline void PushBoolean(lua_State* L, bool value) { lua_pushboolean(L, value); }
inline std::int32_t ReadInt(lua_State* L, int index) { return Low32(lua_tointeger(L, index)); }
inline std::int64_t ReadInt64(lua_State* L, int index) { return lua_tointeger(L, index); }
inline float ReadFloat(lua_State* L, int index) { return static_cast<float>(lua_tonumber(L, index)); }
inline double ReadDouble(lua_State* L, int index) { return lua_tonumber(L, index); }
inline bool ReadBool(lua_State* L, int index) { return lua_toboolean(L, index) != 0; }

using Int = Scalar<PushInteger, ReadInt>;
using Int64 = Scalar<PushInteger, ReadInt64>;
using Float = Scalar<PushNumber, ReadFloat>;
using Double = Scalar<PushNumber, ReadDouble>;
using IntAsNumber = Scalar<PushNumber, ReadInt>;
using Bool = Scalar<PushBoolean, ReadBool>;

struct String {
  template <auto get>
  static Outcome Get(lua_State* L) {
    auto* holder = Self<RecordOf<get>>(L);
    if (holder == nullptr) return Refusal();
    return TextResult(L, [holder](std::string& out) { return CallOnRecord<get>(*holder, out); });
  }

  // A value without text stores the empty string.
  template <auto set>
  static Outcome Set(lua_State* L) {
    const char* text = TextArgument(L, 2);  // may run script code, which may finish the object: so it comes first
    auto* holder = Self<RecordOf<set>>(L);
    if (holder != nullptr) CallOnRecord<set>(*holder, std::string(text == nullptr ? "" : text));
    return Outcome::Results(0);
  }
};

// A map that the record fills on request: no result where it reports failure or the map is empty.
template <class Map, void (*push)(lua_State*, const Map&)>
struct FilledMap {
  template <auto get>
  static Outcome Get(lua_State* L) {
    auto* holder = Self<RecordOf<get>>(L);
    if (holder == nullptr) return Refusal();
    Map map;
    bool filled = true;
    if constexpr (std::is_void_v<decltype(CallOnRecord<get>(*holder, map))>)
      CallOnRecord<get>(*holder, map);
    else
      filled = CallOnRecord<get>(*holder, map);
    if (!filled || map.empty()) return Outcome::Results(0);
    return PushProtected(L, [&map](lua_State* state) { push(state, map); });
  }
};

using StringMap = FilledMap<tarn::velora::StringMap, PushStringMap>;
using IntMap = FilledMap<tarn::velora::IntMap, PushIntMap>;

// A list of which every element must have a text; anything but a table is refused.
struct StrictList {
  template <auto get>
  static Outcome Get(lua_State* L) {
    auto* holder = Self<RecordOf<get>>(L);
    if (holder == nullptr) return Refusal();
    tarn::velora::StringList list;
    CallOnRecord<get>(*holder, list);
    return PushProtected(L, [&list](lua_State* state) { PushStringList(state, list); });
  }

  template <auto set>
  static Outcome Set(lua_State* L) {
    auto* holder = Self<RecordOf<set>>(L);
    if (holder == nullptr || !lua_istable(L, 2)) return Refusal();
    tarn::velora::StringList list;
    if (const char* error = ReadStrictStringList(L, 2, list, "localeId need string list")) return Outcome::Error(error);
    CallOnRecord<set>(*holder, list);
    return Outcome::Results(0);
  }
};

}  // namespace family

// The rows of a field's accessors in a class table.
#define VELORA_GETTER(Record, name, Family) \
  { "get_" #name, Entry<family::Family::Get<&tarn::velora::Record::get_##name>> }
#define VELORA_SETTER(Record, name, Family) \
  { "set_" #name, Entry<family::Family::Set<&tarn::velora::Record::set_##name>> }

// Accessors of a holder's cache. The getter holds on to the container while `push` makes a table of it, whatever script
// code runs meanwhile; the setter raises `error` for anything but a table and keeps the old content.
template <class Record, auto cache, auto push>
Outcome GetCache(lua_State* L) {
  const auto* holder = Self<Record>(L);
  if (holder == nullptr) return Refusal();
  const auto content = holder->*cache;
  return PushProtected(L, [&content](lua_State* state) { push(state, *content); });
}

template <class Record, auto cache, auto read, const char* error>
Outcome SetCachedMap(lua_State* L) {
  auto* holder = Self<Record>(L);
  if (holder == nullptr) return Refusal();
  if (!lua_istable(L, 2)) return Outcome::Error(error);
  auto map = read(L, 2);
  holder->*cache = std::make_shared<const decltype(map)>(std::move(map));
  return Outcome::Results(0);
}

}  // namespace luavelora
