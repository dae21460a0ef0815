// The accessor families. A family is a struct with the templates Get and Set. Their parameter is what they read or
// write: a virtual operation of the record or, if it is a plain struct, a data member. A field is then one row.
#pragma once

#include <memory>
#include <type_traits>

#include "records/class.h"

namespace luavelora {

template <class Member>
struct MemberOf;
template <class Record, class Type>
struct MemberOf<Type Record::*> {
  using Class = Record;
};

// The class whose member `member` points to.
template <auto member>
using ClassOfMember = typename MemberOf<decltype(member)>::Class;

// Calls `operation` on the holder's record and returns its result. Keeps the holder alive during the call.
template <auto operation, class... Arguments>
auto CallOnRecord(HolderOf<ClassOfMember<operation>>& holder, Arguments&&... arguments) {
  const Pin pin(holder);
  return ((*holder.record).*operation)(std::forward<Arguments>(arguments)...);
}

// Returns the value of a field that always has one.
template <auto field>
auto Load(HolderOf<ClassOfMember<field>>& holder) {
  if constexpr (std::is_member_object_pointer_v<decltype(field)>)
    return holder.record.*field;
  else
    return CallOnRecord<field>(holder);
}

// Fills `out` and returns whether there is a value.
template <auto field, class Out>
bool Load(HolderOf<ClassOfMember<field>>& holder, Out& out) {
  if constexpr (std::is_member_object_pointer_v<decltype(field)>) {
    out = holder.record.*field;
    return true;
  } else if constexpr (std::is_void_v<decltype(CallOnRecord<field>(holder, out))>) {
    CallOnRecord<field>(holder, out);
    return true;
  } else {
    return CallOnRecord<field>(holder, out);
  }
}

// Sets the field to `value`.
template <auto field, class Value>
void Store(HolderOf<ClassOfMember<field>>& holder, const Value& value) {
  if constexpr (std::is_member_object_pointer_v<decltype(field)>)
    holder.record.*field = value;
  else
    CallOnRecord<field>(holder, value);
}

// The collector is not told about less memory than this.
inline constexpr std::size_t kMuch = 1024;

// Charges the Lua state for a field's new content. May raise and run script code.
inline void ChargeField(lua_State* L, std::size_t bytes) {
  if (bytes < kMuch) return;
  if (ModuleState* state = ModuleStateOf(L)) state->Charge(L, bytes);
}

namespace family {

// A number or boolean, pushed by `push`. `read` returns argument 2, or 0 or false if it has another type.
template <auto push, auto read>
struct Scalar {
  template <auto field>
  static Outcome Get(lua_State* L) {
    auto* holder = SelfAndNoMore<ClassOfMember<field>>(L);
    if (holder == nullptr) return Refusal();
    push(L, Load<field>(*holder));
    return Outcome::Results(1);
  }

  template <auto field>
  static Outcome Set(lua_State* L) {
    const auto value = read(L, 2);
    auto* holder = SelfAndNoMore<ClassOfMember<field>>(L);
    if (holder != nullptr) Store<field>(*holder, value);
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
  template <auto field>
  static Outcome Get(lua_State* L) {
    auto* holder = SelfAndNoMore<ClassOfMember<field>>(L);
    if (holder == nullptr) return Refusal();
    return TextResult(L, [holder](std::string& out) { return Load<field>(*holder, out); });
  }

  // Stores the empty string if the value is neither a string nor a number.
  template <auto field>
  static Outcome Set(lua_State* L) {
    std::size_t size = 0;
    const char* text = lua_tolstring(L, 2, &size);
    ChargeField(L, size);
    auto* holder = SelfAndNoMore<ClassOfMember<field>>(L);  // only now: the lines above may run script code
    if (holder != nullptr) Store<field>(*holder, std::string(text == nullptr ? "" : text));
    return Outcome::Results(0);
  }
};

// A map that the record fills on request. There is no result if the record reports failure or the map is empty.
template <class Map>
struct FilledMap {
  template <auto field>
  static Outcome Get(lua_State* L) {
    auto* holder = Self<ClassOfMember<field>>(L);
    if (holder == nullptr) return Refusal();
    Map map;
    if (!Load<field>(*holder, map) || map.empty()) return Outcome::Results(0);
    return PushProtected(L, [&map](lua_State* state) { PushContainer(state, map); });
  }
};

using StringMap = FilledMap<tarn::velora::StringMap>;
using IntMap = FilledMap<tarn::velora::IntMap>;

// The same with a setter, which raises an error if the value is not a table.
struct RecordMap : StringMap {
  template <auto field>
  static Outcome Set(lua_State* L) {
    auto* holder = Self<ClassOfMember<field>>(L);
    if (holder == nullptr) return Refusal();
    if (!lua_istable(L, 2)) return Outcome::Error("ptrHashMapmust be table");
    std::size_t bytes = 0;
    {
      const auto map = ReadMap<tarn::velora::StringMap>(L, 2);
      bytes = HeapBytes(map);
      Store<field>(*holder, map);
    }
    ChargeField(L, bytes);
    return Outcome::Results(0);
  }
};

// A list. The setter refuses a value that is not a table, and raises an error if an element is neither a string nor a
// number.
struct StrictList {
  template <auto field>
  static Outcome Get(lua_State* L) {
    auto* holder = Self<ClassOfMember<field>>(L);
    if (holder == nullptr) return Refusal();
    tarn::velora::StringList list;
    Load<field>(*holder, list);
    return PushProtected(L, [&list](lua_State* state) { PushContainer(state, list); });
  }

  template <auto field>
  static Outcome Set(lua_State* L) {
    auto* holder = Self<ClassOfMember<field>>(L);
    if (holder == nullptr || !lua_istable(L, 2)) return Refusal();
    std::size_t bytes = 0;
    {
      tarn::velora::StringList list;
      if (const char* error = ReadStrictStringList(L, 2, list, "localeId need string list"))
        return Outcome::Error(error);
      bytes = HeapBytes(list);
      Store<field>(*holder, list);
    }
    ChargeField(L, bytes);
    return Outcome::Results(0);
  }
};

}  // namespace family

// A string that can be a template argument.
template <std::size_t size>
struct Literal {
  constexpr Literal(const char (&source)[size]) {
    for (std::size_t i = 0; i < size; ++i) text[i] = source[i];
  }
  char text[size];
};

// Accessors of a map or list that the holder caches. The getter holds a reference to the content, since script code may
// run and replace it. The setter raises `error` and changes nothing if the value is not a table.
template <class Record, auto cache>
Outcome GetCache(lua_State* L) {
  const auto* holder = Self<Record>(L);
  if (holder == nullptr) return Refusal();
  const auto content = holder->*cache;
  return PushProtected(L, [&content](lua_State* state) { PushContainer(state, *content); });
}

template <class Record, auto cache, Literal error>
Outcome SetCache(lua_State* L) {
  using Content = std::remove_cvref_t<decltype(*(std::declval<HolderOf<Record>>().*cache))>;
  auto* holder = Self<Record>(L);
  if (holder == nullptr) return Refusal();
  if (!lua_istable(L, 2)) return Outcome::Error(error.text);
  if constexpr (std::is_same_v<Content, tarn::velora::StringList>) {
    std::int32_t length = 0;
    if (const char* tooLong = ClaimedLength(L, 2, length)) return Outcome::Error(tooLong);
    holder = Self<Record>(L);  // `__len` may have finalized the object
    if (holder == nullptr) return Refusal();
    holder->*cache = std::make_shared<const Content>(ReadStringList(L, 2, length));
  } else {
    holder->*cache = std::make_shared<const Content>(ReadMap<Content>(L, 2));
  }
  ChargeField(L, HeapBytes(*(holder->*cache)));
  return Outcome::Results(0);
}

// Registration rows of a field's accessors.
#define VELORA_GETTER(Record, name, Family) Row<family::Family::Get<&Record::get_##name>>("get_" #name)
#define VELORA_SETTER(Record, name, Family) Row<family::Family::Set<&Record::set_##name>>("set_" #name)
#define VELORA_CACHE_ACCESSORS(Record, name, label)             \
  Row<GetCache<Record, &HolderOf<Record>::name>>("get_" #name), \
      Row<SetCache<Record, &HolderOf<Record>::name, "self->" label "must be table">>("set_" #name)

}  // namespace luavelora
