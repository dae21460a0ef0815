// The slow paths of the boundary: copying an exception's message and raising.
#include "binding/boundary.h"

#include <cstdio>
#include <new>

namespace luavelora {

const char* ErrorText::Of(const std::exception& exception) {
  if (dynamic_cast<const std::bad_alloc*>(&exception) != nullptr) return "not enough memory";
  std::snprintf(text_, sizeof text_, "%s", exception.what());
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
