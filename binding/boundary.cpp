// The slow paths of the boundary: keeping an exception's text and raising.
#include "binding/boundary.h"

#include <cstdio>

namespace luavelora {

const char* ErrorText::Set(const char* text) {
  std::snprintf(text_, sizeof text_, "%s", text);
  return text_;
}

void Raise(lua_State* L, Outcome outcome) {
  if (outcome.text() == nullptr)
    lua_error(L);
  else
    luaL_error(L, "%s", outcome.text());
  std::terminate();  // not reached: both raise
}

}  // namespace luavelora
