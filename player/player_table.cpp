// Nothing here owns anything, so Lua's own argument checks will do.
#include "player/player_table.h"

#include "player/arguments.h"

namespace player {
namespace {

constexpr const char* kFrameFunction = "velora-play.onFrame";
constexpr lua_Integer kHighestStatus = 255;

int ReadStatus(lua_State* L, int index) {
  if (lua_isnoneornil(L, index)) return 0;
  if (lua_isboolean(L, index)) return lua_toboolean(L, index) ? 0 : 1;
  lua_Integer status = 0;
  luaL_argcheck(L, ToInteger(L, index, status) && status >= 0 && status <= kHighestStatus, index,
                "an exit status is an integer from 0 to 255, true or false");
  return static_cast<int>(status);
}

// player.quit([status]): ends the run after this frame.
int Quit(lua_State* L) {
  QuitRequest& request = *static_cast<QuitRequest*>(lua_touserdata(L, lua_upvalueindex(1)));
  request.status = ReadStatus(L, 1);
  request.made = true;
  return 0;
}

// player.onFrame(f): calls f(frame) after each frame's update; nil ends that.
int OnFrame(lua_State* L) {
  if (!lua_isnil(L, 1)) luaL_checktype(L, 1, LUA_TFUNCTION);
  lua_settop(L, 1);
  lua_setfield(L, LUA_REGISTRYINDEX, kFrameFunction);
  return 0;
}

constexpr luaL_Reg kFunctions[] = {{"quit", Quit}, {"onFrame", OnFrame}, {nullptr, nullptr}};

}  // namespace

void OpenPlayerTable(lua_State* L, QuitRequest& request, bool terminal) {
  luaL_newlibtable(L, kFunctions);
  lua_pushlightuserdata(L, &request);
  luaL_setfuncs(L, kFunctions, 1);
  lua_pushboolean(L, terminal);
  lua_setfield(L, -2, "terminal");
  lua_setglobal(L, "player");
}

bool PushFrameFunction(lua_State* L) {
  if (lua_getfield(L, LUA_REGISTRYINDEX, kFrameFunction) == LUA_TFUNCTION) return true;
  lua_pop(L, 1);
  return false;
}

}  // namespace player
