#include "binding/callback_error.h"

#include <cstdio>
#include <exception>

#include "binding/conversions.h"
#include "platform/log.h"
#include "platform/operations.h"

namespace luavelora {

void LogCallbackError(lua_State* L) {
  ValueText value;
  char placeholder[64];
  const char* text = value.Get(L, -1);
  if (text == nullptr) {
    std::snprintf(placeholder, sizeof placeholder, "(error object is a %s value)", luaL_typename(L, -1));
    text = placeholder;
  }
  LogCallbackError(text);
}

void LogCallbackError(const char* text) {
  try {
    tarn::log::Log(tarn::velora::LogChannel, 0, "[Velora callback err] %s", text);
  } catch (const std::exception&) {
    // The line is lost, the host is not.
  }
}

}  // namespace luavelora
