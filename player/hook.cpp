#include "player/hook.h"

#include "player/event_pass.h"
#include "player/interrupt.h"
#include "player/strict.h"

namespace player {
namespace {

constexpr int kInterval = 10'000;  // instructions
constexpr int kCallEvents = LUA_MASKCALL | LUA_MASKRET;
bool isStrict = false;
int hookMask = LUA_MASKCOUNT;

void OnHook(lua_State* L, lua_Debug* event) {
  if (event->event == LUA_HOOKCOUNT) return StopWhenInterrupted(L);
  WatchCallbacks(L, event);
  if (isStrict) WatchCall(L, event);
}

lua_State* ThreadArgument(lua_State* L) { return lua_isthread(L, 1) ? lua_tothread(L, 1) : L; }

// debug.sethook([thread,] hook, mask [, count]), or debug.sethook([thread]). The arguments stay on the stack to keep
// the thread alive.
int SetScriptHook(lua_State* L) {
  lua_State* thread = ThreadArgument(L);
  const int arguments = lua_gettop(L);
  luaL_checkstack(L, arguments + 1, nullptr);
  lua_pushvalue(L, lua_upvalueindex(1));
  for (int i = 1; i <= arguments; ++i) lua_pushvalue(L, i);
  lua_call(L, arguments, 0);
  if (lua_gethook(thread) == nullptr) lua_sethook(thread, OnHook, hookMask, kInterval);
  return 0;
}

// debug.gethook([thread]). If the hook is the player's, returns what debug.gethook returns if there is no hook.
int GetScriptHook(lua_State* L) {
  if (lua_gethook(ThreadArgument(L)) == OnHook) {
    lua_pushnil(L);
    lua_pushliteral(L, "");
    lua_pushinteger(L, 0);
    return 3;
  }
  lua_settop(L, 1);
  lua_pushvalue(L, lua_upvalueindex(1));
  lua_insert(L, 1);
  lua_call(L, 1, 3);
  return 3;
}

// Replaces the function `name` in the table on top of the stack with `function`, whose upvalue is the old one.
void Replace(lua_State* L, const char* name, lua_CFunction function) {
  lua_getfield(L, -1, name);
  lua_pushcclosure(L, function, 1);
  lua_setfield(L, -2, name);
}

}  // namespace

void OpenHook(lua_State* L, bool strict) {
  isStrict = strict;
  hookMask = LUA_MASKCOUNT;
  if (strict) hookMask |= kCallEvents;
  lua_getglobal(L, "debug");
  Replace(L, "sethook", SetScriptHook);
  Replace(L, "gethook", GetScriptHook);
  lua_pop(L, 1);
  lua_sethook(L, OnHook, hookMask, kInterval);
}

void HookCalls(lua_State* L, bool enabled) {
  if (isStrict) return;
  hookMask = enabled ? LUA_MASKCOUNT | kCallEvents : LUA_MASKCOUNT;
  if (lua_gethook(L) == OnHook) lua_sethook(L, OnHook, hookMask, lua_gethookcount(L));
}

}  // namespace player
