/* The host of host.cpp, in C. */
#if !defined(_WIN32)
#define _POSIX_C_SOURCE 199309L /* for nanosleep */
#endif

#include <lauxlib.h>
#include <lua.h>
#include <lualib.h>
#include <stdio.h>
#if defined(_WIN32)
#include <windows.h>
#else
#include <time.h>
#endif

#include "module/lua_velora.h"

/* What a game does in a frame: input, simulation, drawing. */
static void RestOfFrame(void) {
#if defined(_WIN32)
  Sleep(16);
#else
  const struct timespec duration = {0, 16 * 1000 * 1000};
  nanosleep(&duration, NULL);
#endif
}

static int Start(lua_State* L) {
  luaL_openlibs(L);
  InitLuaVelora(L); /* makes the global table velora */
  if (luaL_loadfile(L, (const char*)lua_touserdata(L, 1)) != LUA_OK) return lua_error(L);
  lua_call(L, 0, 0);
  return 0;
}

static int RunFrame(lua_State* L) {
  UpdateLuaVelora(L); /* calls the script's callbacks */
  lua_getglobal(L, "over");
  return 1;
}

static int End(lua_State* L) {
  DeinitLuaVelora(L);
  lua_gc(L, LUA_GCCOLLECT, 0); /* Lua 5.3 may hang in a lua_close that interrupts a collection */
  return 0;
}

static int AddTraceback(lua_State* L) {
  luaL_traceback(L, L, luaL_tolstring(L, 1, NULL), 1);
  return 1;
}

/* Calls a step in protected mode and leaves its result on the stack. If it raises, prints the error and returns 0. */
static int Protected(lua_State* L, lua_CFunction step, void* argument) {
  lua_settop(L, 0);
  lua_pushcfunction(L, AddTraceback);
  lua_pushcfunction(L, step);
  lua_pushlightuserdata(L, argument);
  if (lua_pcall(L, 1, 1, 1) == LUA_OK) return 1;
  fprintf(stderr, "host: %s\n", lua_tostring(L, -1)); /* AddTraceback has made it a string */
  return 0;
}

int main(int argc, char** argv) {
  lua_State* L = argc == 2 ? luaL_newstate() : NULL;
  if (L == NULL) {
    fputs(argc == 2 ? "host: not enough memory\n" : "usage: host SCRIPT\n", stderr);
    return 1;
  }
  int ok = Protected(L, Start, argv[1]);
  while (ok && !lua_toboolean(L, -1)) {
    RestOfFrame();
    ok = Protected(L, RunFrame, NULL);
  }
  ok = Protected(L, End, NULL) && ok;
  lua_close(L);
  return ok ? 0 : 1;
}
