// A complete host: runs a script, then frame after frame until the script sets the global `over`, then shuts down.
#include <chrono>
#include <iostream>
#include <lua.hpp>
#include <thread>

#include "module/lua_velora.h"

static int Start(lua_State* L) {
  luaL_openlibs(L);
  InitLuaVelora(L);  // makes the global table velora
  if (luaL_loadfile(L, static_cast<const char*>(lua_touserdata(L, 1))) != LUA_OK) return lua_error(L);
  lua_call(L, 0, 0);
  return 0;
}

static int RunFrame(lua_State* L) {
  UpdateLuaVelora(L);  // calls the script's callbacks
  lua_getglobal(L, "over");
  return 1;
}

static int End(lua_State* L) {
  DeinitLuaVelora(L);
  lua_gc(L, LUA_GCCOLLECT, 0);  // Lua 5.3 may hang in a lua_close that interrupts a collection
  return 0;
}

static int AddTraceback(lua_State* L) {
  luaL_traceback(L, L, luaL_tolstring(L, 1, nullptr), 1);
  return 1;
}

// Calls a step in protected mode and leaves its result on the stack. If it raises, prints the error and returns false.
// Steps own nothing: a Lua error may be a longjmp, which skips destructors.
static bool Protected(lua_State* L, lua_CFunction step, void* argument = nullptr) {
  lua_settop(L, 0);
  lua_pushcfunction(L, AddTraceback);
  lua_pushcfunction(L, step);
  lua_pushlightuserdata(L, argument);
  if (lua_pcall(L, 1, 1, 1) == LUA_OK) return true;
  std::cerr << "host: " << lua_tostring(L, -1) << std::endl;  // AddTraceback has made it a string
  return false;
}

int main(int argc, char** argv) {
  lua_State* L = argc == 2 ? luaL_newstate() : nullptr;
  if (L == nullptr) {
    std::cerr << (argc == 2 ? "host: not enough memory" : "usage: host SCRIPT") << std::endl;
    return 1;
  }
  bool ok = Protected(L, Start, argv[1]);
  while (ok && !lua_toboolean(L, -1)) {
    std::this_thread::sleep_for(std::chrono::milliseconds(16));  // a game's input, simulation and drawing
    ok = Protected(L, RunFrame);
  }
  ok = Protected(L, End) && ok;
  lua_close(L);
  return ok ? 0 : 1;
}
