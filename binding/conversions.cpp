// Lists and maps between Lua tables and the SDK's containers.
#include "binding/conversions.h"

#include <algorithm>
#include <clocale>
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
  if (*end == '\0') {  // looks like an integer: Lua marks it as a float
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
  StringList list;
  list.reserve(std::min(static_cast<std::size_t>(length), lua_rawlen(L, index)));
  ValueText text;
  for (std::int32_t k = 1; k <= length; ++k) {
    const int type = lua_rawgeti(L, index, k);
    if (const char* element = text.Get(L, -1, type)) list.emplace_back(element);
    lua_pop(L, 1);
  }
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

// Calls `entry(key text)` for each entry of the table at `index` whose key has a text, the value being on top.
// The key itself stays a number where it is one, so the traversal goes on undisturbed.
template <class Entry>
void ForEachTextKey(lua_State* L, int index, Entry entry) {
  ValueText key;
  lua_pushnil(L);
  while (lua_next(L, index) != 0) {
    if (const char* text = key.Get(L, -2)) entry(text);
    lua_pop(L, 1);
  }
}

}  // namespace

StringMap ReadStringMap(lua_State* L, int index) {
  StringMap map;
  ValueText value;
  ForEachTextKey(L, index, [&](const char* key) {
    if (const char* text = value.Get(L, -1)) map.insert_or_assign(key, text);
  });
  return map;
}

IntMap ReadIntMap(lua_State* L, int index) {
  IntMap map;
  ForEachTextKey(L, index, [&](const char* key) { map.insert_or_assign(key, Low32(lua_tointeger(L, -1))); });
  return map;
}

void PushStringList(lua_State* L, const StringList& list) {
  lua_createtable(L, 0, 0);
  for (std::size_t k = 0; k < list.size(); ++k) {
    lua_pushstring(L, list[k].c_str());
    lua_rawseti(L, -2, static_cast<lua_Integer>(k + 1));
  }
}

void PushStringMap(lua_State* L, const StringMap& map) {
  lua_createtable(L, 0, 0);
  for (const auto& [key, value] : map) {
    lua_pushstring(L, key.c_str());
    lua_pushstring(L, value.c_str());
    lua_rawset(L, -3);
  }
}

void PushIntMap(lua_State* L, const IntMap& map) {
  lua_createtable(L, 0, 0);
  for (const auto& [key, value] : map) {
    lua_pushstring(L, key.c_str());
    lua_pushinteger(L, value);
    lua_rawset(L, -3);
  }
}

}  // namespace luavelora
