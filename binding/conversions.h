// How Lua values become the SDK's and back. Reading runs no Lua operation that can raise or run script code unless
// the comment says so, so containers may be owned meanwhile; a container is always built aside and complete.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "binding/boundary.h"
#include "platform/types.h"

namespace luavelora {

// The low 32 bits, as the SDK's ints take them.
inline std::int32_t Low32(lua_Integer value) { return static_cast<std::int32_t>(static_cast<std::uint32_t>(value)); }

// The text of a string or number argument up to its first zero byte, null for anything else. A number is replaced in
// its stack slot by its text, which allocates: may raise and, through a finaliser, run script code.
inline const char* TextArgument(lua_State* L, int index) { return lua_tolstring(L, index, nullptr); }

// The text of any value without allocating in Lua: what lua_tolstring would give, with numbers formatted in place.
class ValueText {
 public:
  // Null where the value has no text. Valid while the value stays where it is and this object lives.
  const char* Get(lua_State* L, int index) { return Get(L, index, lua_type(L, index)); }

  // The same where the value's type is known.
  const char* Get(lua_State* L, int index, int type) {
    return type == LUA_TSTRING ? lua_tostring(L, index) : type == LUA_TNUMBER ? FormatNumber(L, index) : nullptr;
  }

 private:
  const char* FormatNumber(lua_State* L, int index);

  char number_[64];  // Lua's own bound on a number's text is 50
};

// The one bound on the length of a list that a script gives, far beyond any real use.
inline constexpr std::int32_t kMaxListLength = 1 << 20;
inline constexpr const char* kListTooLong = "list is longer than 1048576 elements";

// Gives in `length` the count that a table claims by the length operator, 0 for a negative one, and null; or the text
// of the error. May raise and run script code (`__len`).
const char* ClaimedLength(lua_State* L, int index, std::int32_t& length);

// The raw elements 1 to `length` of the table at `index` that have a text, in order.
tarn::velora::StringList ReadStringList(lua_State* L, int index, std::int32_t length);

// Fills `list` with the raw elements 1 to n of the table at `index`, n being its raw length, and gives null; or gives
// kListTooLong, or `error` when an element has no text.
const char* ReadStrictStringList(lua_State* L, int index, tarn::velora::StringList& list, const char* error);

// The raw elements 1 to `length` as integers, 0 for what is none.
std::vector<std::int32_t> ReadIntList(lua_State* L, int index, std::int32_t length);

// The entries of the table at `index` whose key and value have a text.
tarn::velora::StringMap ReadStringMap(lua_State* L, int index);

// The entries whose key has a text, values as integers, 0 for what is none.
tarn::velora::IntMap ReadIntMap(lua_State* L, int index);

// Push one new value each; may raise and run script code. Strings end at their first zero byte.
void PushStringList(lua_State* L, const tarn::velora::StringList& list);
void PushStringMap(lua_State* L, const tarn::velora::StringMap& map);
void PushIntMap(lua_State* L, const tarn::velora::IntMap& map);

// Whether `text` lies inside the string object, which then owns no memory.
inline bool LiesInside(const std::string& text) {
#if defined(_ITERATOR_DEBUG_LEVEL) && _ITERATOR_DEBUG_LEVEL != 0
  return false;  // Visual C++'s debug strings own a block for their iterators
#else
  const auto* object = reinterpret_cast<const char*>(&text);
  const auto* end = reinterpret_cast<const char*>(&text + 1);
  return !std::less<>()(text.data(), object) && std::less<>()(text.data(), end);
#endif
}

struct DestroyString {
  void operator()(std::string* text) const { std::destroy_at(text); }
};

// Gives a text to Lua as the one result of a function. `fill(out)` fills an empty string and tells whether there is a
// text to give; without one there is no result. A text that owns memory is copied aside, or pushed in protected mode.
// Lua remembers texts by address: the same one again costs no hashing.
template <class Fill>
Outcome TextResult(lua_State* L, Fill fill) {
  alignas(std::string) std::byte place[sizeof(std::string)];  // no destructor runs over it where Lua raises
  constexpr std::size_t kShort = 256;
  char copy[kShort];
  const char* text = copy;
  {
    std::unique_ptr<std::string, DestroyString> out(new (place) std::string);
    if (!fill(*out)) return Outcome::Results(0);
    if (LiesInside(*out)) {
      text = out.release()->c_str();
    } else {
      const std::size_t size = std::char_traits<char>::length(out->c_str()) + 1;
      if (size > kShort) return PushProtected(L, [&out](lua_State* state) { lua_pushstring(state, out->c_str()); });
      std::char_traits<char>::copy(copy, out->c_str(), size);
    }
  }
  lua_pushstring(L, text);
  return Outcome::Results(1);
}

}  // namespace luavelora
