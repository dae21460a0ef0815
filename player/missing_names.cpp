#include "player/missing_names.h"

#include <string_view>

#include "player/call_text.h"
#include "player/reports.h"
#include "player/suggest.h"

namespace player {
namespace {

// Returns the name in the table at `index` that is most like `wrong`.
std::string_view FindSimilar(lua_State* L, int index, std::string_view wrong) {
  Suggestion suggestion(wrong);
  for (lua_pushnil(L); lua_next(L, index) != 0; lua_pop(L, 1))
    if (lua_type(L, -2) == LUA_TSTRING) suggestion.Consider(lua_tostring(L, -2));
  return suggestion.Best();
}

// __index(velora, name). Reports the name and returns nil.
int ReportName(lua_State* L) {
  if (lua_type(L, 1) != LUA_TTABLE || lua_type(L, 2) != LUA_TSTRING) return 0;
  const char* name = lua_tostring(L, 2);
  const std::string_view similar = FindSimilar(L, 1, name);
  CallText position;
  DescribePosition(L, position);
  if (similar.empty())
    Report("%s: velora.%s: no such name", position, name);
  else
    Report("%s: velora.%s: no such name; did you mean %s?", position, name, similar.data());
  return 0;
}

}  // namespace

void OpenMissingNames(lua_State* L) {
  lua_getglobal(L, "velora");
  lua_createtable(L, 0, 1);
  lua_pushcfunction(L, ReportName);
  lua_setfield(L, -2, "__index");
  lua_setmetatable(L, -2);
  lua_pop(L, 1);
}

}  // namespace player
