// Lifecycle wrappers with rules of their own.
#include <algorithm>
#include <cstring>

#include "wrappers/wrappers.h"

namespace luavelora::wrappers {

// Returns false for a bad argument, unlike other wrappers.
Outcome hasFeature(lua_State* L) {
  const char* feature = TextArgument(L, 1);
  lua_pushboolean(L, feature != nullptr && tarn::velora::hasFeature(feature));
  return Outcome::Results(1);
}

// Calls the overload without `second` if argument 2 is neither a string nor a number.
Outcome getPropStr(lua_State* L) {
  const char* name = TextArgument(L, 1);
  if (name == nullptr) return Refusal();
  const char* second = TextArgument(L, 2);
  return TextResult(L, [=](std::string& out) {
    return second == nullptr ? tarn::velora::getPropStr(name, out) : tarn::velora::getPropStr(name, second, out);
  });
}

// Passes a pointer to an int, a string or a one-byte bool, depending on the Lua type. The SDK reads it as the type of
// the option. Short values are padded with zeros, so that reading one as a wrong type stays inside the buffer.
Outcome zvLumoSetOption(lua_State* L) {
  if (lua_gettop(L) < 2 || !lua_isstring(L, 1)) return Refusal();
  const char* name = TextArgument(L, 1);
  alignas(std::int64_t) char padded[2 * sizeof(std::int64_t)] = {};
  const void* value = padded;
  if (lua_isinteger(L, 2)) {
    const std::int32_t number = Low32(lua_tointeger(L, 2));
    std::memcpy(padded, &number, sizeof number);
  } else if (const char* text = TextArgument(L, 2)) {
    const std::size_t size = std::strlen(text);
    if (size < sizeof(std::int64_t))
      std::copy_n(text, size, padded);
    else
      value = text;
  } else if (lua_isboolean(L, 2)) {
    padded[0] = lua_toboolean(L, 2) != 0 ? 1 : 0;
  } else {
    return Outcome::Error("zvLumoSetOption: unsupport value type.");
  }
  tarn::velora::zvLumoSetOption(name, value);
  return Outcome::Results(0);
}

// No argument, nil and the empty string clear the parameter.
Outcome setCmdLineParameter(lua_State* L) {
  const char* text = nullptr;
  if (!lua_isnoneornil(L, 1)) {
    if (lua_gettop(L) == 1) text = TextArgument(L, 1);
    if (text == nullptr) return Outcome::Error("setCmdLineParameter must be str");
    if (*text == '\0') text = nullptr;
  }
  tarn::velora::setCmdLineParameter(text);
  return Outcome::Results(0);
}

}  // namespace luavelora::wrappers
