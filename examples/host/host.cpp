// The game of host.c in C++. A Lua error may be a longjmp, which runs no destructors: the steps own nothing, and what
// does own something lives outside the protected calls. Usage: host_cpp SCRIPT
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <lua.hpp>
#include <memory>
#include <thread>

#include "module/lua_velora.h"

namespace {

constexpr std::chrono::milliseconds kFrame(16);

struct CloseState {
  void operator()(lua_State* L) const { lua_close(L); }
};
using State = std::unique_ptr<lua_State, CloseState>;

struct Game {
  const char* script;
  bool over;
};

// quitGame(), for the script: the game ends after this frame.
int QuitGame(lua_State* L) {
  static_cast<Game*>(lua_touserdata(L, lua_upvalueindex(1)))->over = true;
  return 0;
}

// The steps. Each is called with the game as its argument.

int Start(lua_State* L) {
  luaL_openlibs(L);
  lua_pushvalue(L, 1);
  lua_pushcclosure(L, QuitGame, 1);
  lua_setglobal(L, "quitGame");
  InitLuaVelora(L);
  return 0;
}

int RunScript(lua_State* L) {
  const Game& game = *static_cast<const Game*>(lua_touserdata(L, 1));
  if (luaL_loadfile(L, game.script) != LUA_OK) return lua_error(L);
  lua_call(L, 0, 0);
  return 0;
}

int Update(lua_State* L) {
  UpdateLuaVelora(L);
  return 0;
}

int End(lua_State* L) {
  DeinitLuaVelora(L);
  lua_gc(L, LUA_GCCOLLECT, 0);  // Lua 5.3 may hang in a lua_close that interrupts a collection
  return 0;
}

// Message handler: the error's text, whatever value it is, and where it came from.
int Traceback(lua_State* L) {
  luaL_traceback(L, L, luaL_tolstring(L, 1, nullptr), 1);
  return 1;
}

// Runs one step; reports what it raises and answers false then.
bool Protected(const State& state, lua_CFunction step, Game& game) {
  lua_State* L = state.get();
  lua_pushcfunction(L, Traceback);
  lua_pushcfunction(L, step);
  lua_pushlightuserdata(L, &game);
  const bool ok = lua_pcall(L, 1, 0, -3) == LUA_OK;
  if (!ok) {
    const char* text = lua_tostring(L, -1);
    std::cerr << "host: " << (text != nullptr ? text : "(an error without a text)") << std::endl;
  }
  lua_settop(L, 0);
  return ok;
}

bool Play(const State& state, Game& game) {
  if (!Protected(state, Start, game)) return false;
  bool ok = Protected(state, RunScript, game);
  while (ok && !game.over) {
    std::this_thread::sleep_for(kFrame);  // a game's input, simulation and drawing
    ok = Protected(state, Update, game);
  }
  return Protected(state, End, game) && ok;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: host_cpp SCRIPT" << std::endl;
    return EXIT_FAILURE;
  }
  Game game = {argv[1], false};
  const State state(luaL_newstate());  // closed before the game goes: the scripts' finalisers run then
  if (state == nullptr) {
    std::cerr << "host: not enough memory for a Lua state" << std::endl;
    return EXIT_FAILURE;
  }
  return Play(state, game) ? EXIT_SUCCESS : EXIT_FAILURE;
}
