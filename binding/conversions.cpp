#include "binding/conversions.h"

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "platform/binding_helpers.h"

namespace luavelora {

using tarn::velora::IntMap;
using tarn::velora::StringList;
using tarn::velora::StringMap;

const char* ValueText::FormatNumber(lua_State* L, int index) {
  if (lua_isinteger(L, index)) {
    lua_integer2str(number_, sizeof number_, lua_tointeger(L, index));
    return number_;
  }
  lua_number2str(number_, sizeof number_, lua_tonumber(L, index));
  char* end = number_ + std::strspn(number_, "-0123456789");
  if (*end == '\0') {  // it looks like an integer: mark it as a float, as Lua does
    end[0] = lua_getlocaledecpoint();
    end[1] = '0';
    end[2] = '\0';
  }
  return number_;
}

const char* ClaimedLength(lua_State* L, int index, std::int32_t& length) {
  lua_len(L, index);
  length = Low32(lua_tointeger(L, -1));
  lua_pop(L, 1);
  if (length < 0) length = 0;
  return length > kMaxListLength ? kListTooLong : nullptr;
}

StringList ReadStringList(lua_State* L, int index, std::int32_t length) {
  constexpr std::int32_t kKept = 8;  // the number of elements that are popped together
  const int top = lua_gettop(L);
  StringList list;
  list.reserve(std::min(static_cast<std::size_t>(length), lua_rawlen(L, index)));
  ValueText text;
  for (std::int32_t k = 1; k <= length; ++k) {
    const int type = lua_rawgeti(L, index, k);
    if (const char* element = text.Get(L, -1, type)) list.emplace_back(element);
    if (k % kKept == 0) lua_settop(L, top);
  }
  lua_settop(L, top);
  return list;
}

const char* ReadStrictStringList(lua_State* L, int index, StringList& list, const char* error) {
  lua_pushvalue(L, index);
  const std::int32_t length = GetLuaTableLen(L);
  lua_pop(L, 1);
  if (length > kMaxListLength) return kListTooLong;
  list.reserve(static_cast<std::size_t>(std::max(length, 0)));
  ValueText text;
  for (std::int32_t k = 1; k <= length; ++k) {
    const int type = lua_rawgeti(L, index, k);
    const char* element = text.Get(L, -1, type);
    if (element == nullptr) return error;
    list.emplace_back(element);
    lua_pop(L, 1);
  }
  return nullptr;
}

std::vector<std::int32_t> ReadIntList(lua_State* L, int index, std::int32_t length) {
  std::vector<std::int32_t> list;
  list.reserve(static_cast<std::size_t>(length));
  for (std::int32_t k = 1; k <= length; ++k) {
    lua_rawgeti(L, index, k);
    list.push_back(Low32(lua_tointeger(L, -1)));
    lua_pop(L, 1);
  }
  return list;
}

namespace {

// Calls `visit(key)` for each entry of the table at `index` whose key is a string or number, with the value on top of
// the stack. Does not convert number keys on the stack, which would confuse lua_next.
template <class Visit>
void ForEachKey(lua_State* L, int index, Visit visit) {
  ValueText key;
  lua_pushnil(L);
  while (lua_next(L, index) != 0) {
    if (const char* text = key.Get(L, -2)) visit(text);
    lua_pop(L, 1);
  }
}

bool HasZeroByte(const char* eightBytes) {
  std::uint64_t word;
  std::memcpy(&word, eightBytes, sizeof word);
  return ((word - 0x0101010101010101U) & ~word & 0x8080808080808080U) != 0;
}

// Returns std::strlen(text.c_str()). Most strings in lists have 8 to 16 bytes; two words cover these without a call.
std::size_t LengthToZeroByte(const std::string& text) {
  const std::size_t size = text.size();
  if (size >= 8 && size <= 16 && !HasZeroByte(text.data()) && !HasZeroByte(text.data() + size - 8)) return size;
  return std::strlen(text.c_str());
}

inline void PushValue(lua_State* L, const std::string& text) { lua_pushstring(L, text.c_str()); }
inline void PushValue(lua_State* L, std::int32_t value) { lua_pushinteger(L, value); }

template <class Map>
void PushMap(lua_State* L, const Map& map) {
  lua_createtable(L, 0, TableSize(map.size()));
  for (const auto& [key, value] : map) {
    PushValue(L, key);
    PushValue(L, value);
    lua_rawset(L, -3);
  }
}

}  // namespace

template <>
StringMap ReadMap(lua_State* L, int index) {
  StringMap map;
  ValueText value;
  ForEachKey(L, index, [&](const char* key) {
    if (const char* text = value.Get(L, -1)) map.insert_or_assign(key, text);
  });
  return map;
}

template <>
IntMap ReadMap(lua_State* L, int index) {
  IntMap map;
  ForEachKey(L, index, [&](const char* key) { map.insert_or_assign(key, Low32(lua_tointeger(L, -1))); });
  return map;
}

void PushContainer(lua_State* L, const StringList& list) {
  lua_createtable(L, TableSize(list.size()), 0);
  for (std::size_t k = 0; k < list.size(); ++k) {
    // Not lua_pushstring: a list does not fit in its cache, so that looking there would only cost time.
    lua_pushlstring(L, list[k].data(), LengthToZeroByte(list[k]));
    lua_rawseti(L, -2, static_cast<lua_Integer>(k + 1));
  }
}

void PushContainer(lua_State* L, const StringMap& map) { PushMap(L, map); }
void PushContainer(lua_State* L, const IntMap& map) { PushMap(L, map); }

}  // namespace luavelora
