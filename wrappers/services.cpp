// Service wrappers with rules of their own.
#include "wrappers/wrappers.h"

namespace luavelora::wrappers {

// Takes any value as a boolean.
Outcome zvSetFloatBtnVisible(lua_State* L) {
  tarn::velora::zvSetFloatBtnVisible(lua_toboolean(L, 1) != 0);
  return Outcome::Results(0);
}

// Unlike the other list wrappers, refuses a missing list instead of raising.
Outcome zvSendPushNotification(lua_State* L) {
  if (!lua_isstring(L, 1) || !lua_istable(L, 2)) return Refusal();
  const char* text = TextArgument(L, 1);
  std::int32_t length = 0;
  if (const char* error = ClaimedLength(L, 2, length)) return Outcome::Error(error);
  tarn::velora::zvSendPushNotification(text, ReadStringList(L, 2, length));
  return Outcome::Results(0);
}

// Calls the overload without an icon if argument 5 is neither a string nor a number.
Outcome zvCreateQRCode(lua_State* L) {
  using Text = Parameter<const std::string&>;
  return WithArguments<const std::string&, std::int32_t, std::int32_t, const std::string&>(
      L, [L](const char* text, std::int32_t width, std::int32_t height, const char* path) {
        if (const char* icon = Text::Read(L, 5))
          tarn::velora::zvCreateQRCode(text, width, height, path, icon);
        else
          tarn::velora::zvCreateQRCode(text, width, height, path);
        return Outcome::Results(0);
      });
}

namespace {

// Returns the integer at `index`, or `otherwise` if there is none.
lua_Integer OptionalInteger(lua_State* L, int index, lua_Integer otherwise) {
  return lua_isinteger(L, index) ? lua_tointeger(L, index) : otherwise;
}

}  // namespace

// Passes the data without a copy. A size of 0, a negative one or one beyond the data means all of the data.
Outcome zvPushGameVoice(lua_State* L) {
  std::size_t length = 0;
  const char* data = lua_tolstring(L, 1, &length);
  if (data == nullptr) return Refusal();
  const auto size = static_cast<std::size_t>(OptionalInteger(L, 2, 0));  // huge if negative
  tarn::velora::zvPushGameVoice(
      data, size == 0 || size > length ? length : size, static_cast<std::uint32_t>(OptionalInteger(L, 3, 48000)),
      static_cast<std::uint32_t>(OptionalInteger(L, 4, 16)), static_cast<std::uint32_t>(OptionalInteger(L, 5, 2)));
  return Outcome::Results(0);
}

}  // namespace luavelora::wrappers
