// Conversions between Lua values and SDK values. Unless its comment says otherwise, a function that reads a Lua value
// runs no Lua operation that can raise or run script code, so that it may own a container. It fills a new container and
// moves it into place when it is complete.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "binding/boundary.h"
#include "platform/types.h"

namespace luavelora {

// Returns the low 32 bits: an integer outside the range of the SDK's ints wraps around.
inline std::int32_t Low32(lua_Integer value) { return static_cast<std::int32_t>(static_cast<std::uint32_t>(value)); }

// Returns the argument as a C string, or null if it is neither a string nor a number. A number is converted to a string
// in its stack slot, which allocates: may raise and, through a finalizer, run script code.
inline const char* TextArgument(lua_State* L, int index) { return lua_tolstring(L, index, nullptr); }

// Converts a value to a C string as lua_tolstring does, but allocates nothing in Lua: it formats numbers itself.
class ValueText {
 public:
  // Returns the string, or null if the value is neither a string nor a number. Valid until the next call or until the
  // value leaves the stack.
  const char* Get(lua_State* L, int index) { return Get(L, index, lua_type(L, index)); }

  // The same for a value of a known type.
  const char* Get(lua_State* L, int index, int type) {
    return type == LUA_TSTRING ? lua_tostring(L, index) : type == LUA_TNUMBER ? FormatNumber(L, index) : nullptr;
  }

 private:
  const char* FormatNumber(lua_State* L, int index);

  char number_[64];  // Lua uses at most 50
};

// Upper bound on the length of a list argument.
inline constexpr std::int32_t kMaxListLength = 1 << 20;
inline constexpr const char* kListTooLong = "list is longer than 1048576 elements";

// Stores the result of the length operator in `length`, or 0 if it is negative, and returns null. Returns kListTooLong
// if it is too large. May raise and run script code (`__len`).
const char* ClaimedLength(lua_State* L, int index, std::int32_t& length);

// Returns the raw elements 1 to `length` of the table at `index` that are strings or numbers, in order.
tarn::velora::StringList ReadStringList(lua_State* L, int index, std::int32_t length);

// Fills `list` with the raw elements of the table at `index` and returns null. Returns kListTooLong if there are too
// many, `error` if one is neither a string nor a number.
const char* ReadStrictStringList(lua_State* L, int index, tarn::velora::StringList& list, const char* error);

// Returns the raw elements 1 to `length`, 0 for those that are not integers.
std::vector<std::int32_t> ReadIntList(lua_State* L, int index, std::int32_t length);

// Returns the entries of the table at `index` whose key is a string or number. For a StringMap the value must be one
// too; for an IntMap a value that is not an integer counts as 0.
template <class Map>
Map ReadMap(lua_State* L, int index);

// Returns an estimate of the heap bytes that a container owns.
inline std::size_t HeapBytes(const std::string& text) { return text.size(); }
inline std::size_t HeapBytes(std::int32_t) { return 0; }
template <class Value>
std::size_t HeapBytes(const std::unordered_map<std::string, Value>& map) {
  std::size_t bytes = 0;
  for (const auto& [key, value] : map) bytes += 64 + HeapBytes(key) + HeapBytes(value);
  return bytes;
}
inline std::size_t HeapBytes(const tarn::velora::StringList& list) {
  std::size_t bytes = 0;
  for (const std::string& element : list) bytes += sizeof element + HeapBytes(element);
  return bytes;
}

// Returns the size of a container for lua_createtable, at most the largest int.
inline int TableSize(std::size_t size) {
  return static_cast<int>(std::min<std::size_t>(size, std::numeric_limits<int>::max()));
}

// Pushes a new table with the content of a container. Strings end at their first zero byte. May raise and run script
// code.
void PushContainer(lua_State* L, const tarn::velora::StringList& list);
void PushContainer(lua_State* L, const tarn::velora::StringMap& map);
void PushContainer(lua_State* L, const tarn::velora::IntMap& map);

// Returns whether the characters are inside the string object, which then owns no heap memory.
inline bool IsSmallString(const std::string& text) {
  const auto* object = reinterpret_cast<const char*>(&text);
  const auto* end = reinterpret_cast<const char*>(&text + 1);
  return !std::less<>()(text.data(), object) && std::less<>()(text.data(), end);
}

struct DestroyString {
  void operator()(std::string* text) const { std::destroy_at(text); }
};

// Pushes the string that `fill(out)` stores and returns it as the function's single result. Returns no result if `fill`
// returns false. lua_pushstring can raise, so a string that owns memory is first copied to a local array or, if it is
// long, pushed in protected mode. Any other is pushed from where it is: lua_pushstring caches by address, so pushing
// from the same address again skips the hash.
template <class Fill>
Outcome TextResult(lua_State* L, Fill fill) {
  alignas(std::string) std::byte place[sizeof(std::string)];  // no destructor that an error could skip
  constexpr std::size_t kShort = 256;
  char copy[kShort];
  const char* text = copy;
  {
    std::unique_ptr<std::string, DestroyString> out(new (place) std::string);
    if (!fill(*out)) return Outcome::Results(0);
    if (IsSmallString(*out)) {
      text = out.release()->c_str();
    } else {
      if (out->size() >= kShort)
        return PushProtected(L, [&out](lua_State* state) { lua_pushstring(state, out->c_str()); });
      std::char_traits<char>::copy(copy, out->c_str(), out->size() + 1);
    }
  }
  lua_pushstring(L, text);
  return Outcome::Results(1);
}

}  // namespace luavelora
