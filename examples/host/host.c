// A game around the module, in C: it starts, runs a script, then a frame at a time until the script calls quitGame(),
// and ends in order. Whatever may raise a Lua error runs in a protected call; outside one it would abort the process.
// Usage: host_c SCRIPT
#if !defined(_WIN32)
#define _POSIX_C_SOURCE 199309L  // nanosleep
#endif

#include <lauxlib.h>
#include <lua.h>
#include <lualib.h>
#include <stdio.h>
#include <stdlib.h>
#if defined(_WIN32)
#include <windows.h>
#else
#include <time.h>
#endif

#include "module/lua_velora.h"

typedef struct Game {
  const char* script;
  int over;
} Game;

// What a game does between two updates: input, simulation, drawing. Here it only lets the time of a frame pass.
static void RestOfFrame(void) {
#if defined(_WIN32)
  Sleep(16);
#else
  const struct timespec frame = {0, 16 * 1000 * 1000};
  nanosleep(&frame, NULL);
#endif
}

// quitGame(), for the script: the game ends after this frame.
static int QuitGame(lua_State* L) {
  Game* game = (Game*)lua_touserdata(L, lua_upvalueindex(1));
  game->over = 1;
  return 0;
}

// The steps. Each is called with the game as its argument.

static int Start(lua_State* L) {
  luaL_openlibs(L);
  lua_pushvalue(L, 1);
  lua_pushcclosure(L, QuitGame, 1);
  lua_setglobal(L, "quitGame");
  InitLuaVelora(L);
  return 0;
}

static int RunScript(lua_State* L) {
  const Game* game = (const Game*)lua_touserdata(L, 1);
  if (luaL_loadfile(L, game->script) != LUA_OK) return lua_error(L);
  lua_call(L, 0, 0);
  return 0;
}

static int Update(lua_State* L) {
  UpdateLuaVelora(L);
  return 0;
}

static int End(lua_State* L) {
  DeinitLuaVelora(L);
  lua_gc(L, LUA_GCCOLLECT, 0);  // Lua 5.3 may hang in a lua_close that interrupts a collection
  return 0;
}

// Message handler: the error's text, whatever value it is, and where it came from.
static int Traceback(lua_State* L) {
  luaL_traceback(L, L, luaL_tolstring(L, 1, NULL), 1);
  return 1;
}

// Runs one step; reports what it raises and answers 0 then.
static int Protected(lua_State* L, lua_CFunction step, Game* game) {
  lua_pushcfunction(L, Traceback);
  lua_pushcfunction(L, step);
  lua_pushlightuserdata(L, game);
  const int status = lua_pcall(L, 1, 0, -3);
  if (status != LUA_OK) {
    const char* text = lua_tostring(L, -1);
    fprintf(stderr, "host: %s\n", text != NULL ? text : "(an error without a text)");
    lua_pop(L, 1);
  }
  lua_pop(L, 1);
  return status == LUA_OK;
}

static int Play(lua_State* L, Game* game) {
  if (!Protected(L, Start, game)) return 0;
  int ok = Protected(L, RunScript, game);
  while (ok && !game->over) {
    RestOfFrame();
    ok = Protected(L, Update, game);
  }
  return Protected(L, End, game) && ok;
}

int main(int argc, char** argv) {
  if (argc != 2) {
    fputs("usage: host_c SCRIPT\n", stderr);
    return EXIT_FAILURE;
  }
  lua_State* L = luaL_newstate();
  if (L == NULL) {
    fputs("host: not enough memory for a Lua state\n", stderr);
    return EXIT_FAILURE;
  }
  Game game = {argv[1], 0};
  const int ok = Play(L, &game);
  lua_close(L);  // the scripts' finalisers run here, so the game must still be there
  return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
