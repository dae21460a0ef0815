#include "player/player_table.h"

#include <string>

#include "player/arguments.h"

namespace player {
namespace {

using luavelora::Outcome;

// Its address is the registry key of the function given to player.onFrame, or false. The entry always exists, so that
// setting it allocates nothing and cannot raise.
constexpr char kFrameFunction = 0;
constexpr lua_Integer kHighestStatus = 255;

int ReadStatus(lua_State* L, int index) {
  if (lua_isnoneornil(L, index)) return 0;
  if (lua_isboolean(L, index)) return lua_toboolean(L, index) ? 0 : 1;
  lua_Integer status = 0;
  const std::string expected = "integer from 0 to " + std::to_string(kHighestStatus) + " or boolean";
  if (!ToInteger(L, index, status)) throw ArgumentError(index, TypeMismatch(L, index, expected.c_str()));
  if (status < 0 || status > kHighestStatus)
    throw ArgumentError(index, expected + " expected, got " + std::to_string(status));
  return static_cast<int>(status);
}

// player.quit([status]): ends the run after this frame.
Outcome Quit(lua_State* L) {
  QuitRequest& request = *static_cast<QuitRequest*>(lua_touserdata(L, lua_upvalueindex(1)));
  request.status = ReadStatus(L, 1);
  request.requested = true;
  return Outcome::Results(0);
}

// player.onFrame(f): sets the function that is called after each frame's update; nil removes it.
Outcome OnFrame(lua_State* L) {
  if (!lua_isnil(L, 1) && !lua_isfunction(L, 1)) throw ArgumentError(1, TypeMismatch(L, 1, "function or nil"));
  lua_settop(L, 1);
  if (lua_isnil(L, 1)) {
    lua_pushboolean(L, 0);
    lua_replace(L, 1);
  }
  lua_rawsetp(L, LUA_REGISTRYINDEX, &kFrameFunction);
  return Outcome::Results(0);
}

constexpr luaL_Reg kFunctions[] = {Row<"quit", Quit>(), Row<"onFrame", OnFrame>(), {nullptr, nullptr}};

}  // namespace

void OpenPlayerTable(lua_State* L, QuitRequest& request, bool terminal) {
  lua_pushboolean(L, 0);
  lua_rawsetp(L, LUA_REGISTRYINDEX, &kFrameFunction);
  luaL_newlibtable(L, kFunctions);
  lua_pushlightuserdata(L, &request);
  luaL_setfuncs(L, kFunctions, 1);
  lua_pushboolean(L, terminal);
  lua_setfield(L, -2, "terminal");
  lua_setglobal(L, "player");
}

bool PushFrameFunction(lua_State* L) {
  if (lua_rawgetp(L, LUA_REGISTRYINDEX, &kFrameFunction) == LUA_TFUNCTION) return true;
  lua_pop(L, 1);
  return false;
}

}  // namespace player
