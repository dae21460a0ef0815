#include "player/run.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

#include "offline/control.h"
#include "player/event_pass.h"
#include "player/hook.h"
#include "player/interrupt.h"
#include "player/offline_table.h"
#include "player/reports.h"
#include "player/strict.h"
#include "player/terminal.h"
#include "player/timeline.h"
#include "player/watch.h"

namespace player {
namespace {

using Clock = std::chrono::steady_clock;
constexpr Clock::duration kFrameTime = std::chrono::microseconds(16667);

// Message handler: returns the error message with a traceback.
int Traceback(lua_State* L) {
  const char* text = lua_tostring(L, 1);
  if (text == nullptr && luaL_callmeta(L, 1, "__tostring") != 0) text = lua_tostring(L, -1);
  if (text == nullptr) text = lua_pushfstring(L, "(error object is a %s value)", luaL_typename(L, 1));
  luaL_traceback(L, L, text, 1);
  return 1;
}

// Calls a function of the script, which is below its arguments on the stack. Raises its errors with a traceback added.
void CallScript(lua_State* L, int arguments) {
  const int function = lua_gettop(L) - arguments;
  lua_pushcfunction(L, Traceback);
  lua_insert(L, function);
  if (lua_pcall(L, arguments, 0, function) != LUA_OK) lua_error(L);
  lua_remove(L, function);
}

// Sets the table `arg` as the program `lua` does: the script at 0, its arguments from 1, earlier arguments below 0.
void SetArguments(lua_State* L, const Game& game) {
  lua_createtable(L, game.argc - game.options.script - 1, game.options.script + 1);
  for (int i = 0; i < game.argc; ++i) {
    lua_pushstring(L, game.argv[i]);
    lua_rawseti(L, -2, i - game.options.script);
  }
  lua_setglobal(L, "arg");
}

int Collect(lua_State* L) {
  lua_gc(L, LUA_GCCOLLECT, 0);
  return 0;
}

// Closes the state, which runs the script's finalizers. Completes the collection cycle first, since Lua 5.3 loops
// forever if a finalizer calls collectgarbage in a lua_close that interrupts a sweep.
void Close(lua_State* L, Game& game) {
  game.closing = true;
  lua_pushcfunction(L, Collect);
  lua_pcall(L, 0, 0, 0);
  lua_close(L);
}

// Ends the run after its state was closed. Returns the exit status.
int Finish(int status) {
  FinishEventPass();
  CloseTimeline();
  if (Interrupted()) return kInterrupted;
  return status == 0 && HasReports() ? kReported : status;
}

int PlayAgain(Game& game, int status);

// os.exit([status]): ends the run at once, even inside a pcall, with the same steps as at the end of every run.
int Exit(lua_State* L) {
  Game& game = *static_cast<Game*>(lua_touserdata(L, lua_upvalueindex(1)));
  const bool isFlag = lua_isboolean(L, 1);
  const lua_Integer status = isFlag ? (lua_toboolean(L, 1) ? 0 : 1) : luaL_optinteger(L, 1, 0);
  if (!game.closing) {
    game.module.deinit(L);
    Close(L, game);
  }
  const int final = PlayAgain(game, Finish(static_cast<int>(status)));
  tarn::velora::offline::Stop();
  std::exit(final);
}

void ReplaceExit(lua_State* L, Game& game) {
  lua_getglobal(L, "os");
  lua_pushlightuserdata(L, &game);
  lua_pushcclosure(L, Exit, 1);
  lua_setfield(L, -2, "exit");
  lua_pop(L, 1);
}

// The steps below run in protected mode, since the entry points may raise memory errors. They own nothing, so that a
// longjmp may skip their frames.

Game& GetGame(lua_State* L) { return *static_cast<Game*>(lua_touserdata(L, 1)); }

int Start(lua_State* L) {
  Game& game = GetGame(L);
  luaL_openlibs(L);
  ReplaceExit(L, game);
  SetArguments(L, game);
  OpenPlayerTable(L, game.quit, IsTerminal());
  OpenOfflineTable(L);
  game.module.init(L);
  OpenEventPass(L, game.options.trace);
  if (game.options.watch) WatchModules(L);
  if (game.options.strict) OpenStrict(L);
  OpenHook(L, game.options.strict);
  return 0;
}

int RunScript(lua_State* L) {
  const Game& game = GetGame(L);
  const char* script = game.argv[game.options.script];
  if (luaL_loadfile(L, std::strcmp(script, kStdin) == 0 ? nullptr : script) != LUA_OK) return lua_error(L);
  const int arguments = game.argc - game.options.script - 1;
  luaL_checkstack(L, arguments + 1, "too many arguments");
  for (int i = game.options.script + 1; i < game.argc; ++i) lua_pushstring(L, game.argv[i]);
  BeginSlice(script);
  CallScript(L, arguments);
  EndSlice();
  return 0;
}

int RunFrame(lua_State* L) {
  const Game& game = GetGame(L);
  BeginPass(L);
  HookCalls(L, true);
  game.module.update(L);
  HookCalls(L, false);
  EndPass(L);
  if (!PushFrameFunction(L)) return 0;
  lua_pushinteger(L, game.frame);
  BeginSlice("player.onFrame");
  CallScript(L, 1);
  EndSlice();
  return 0;
}

int End(lua_State* L) {
  GetGame(L).module.deinit(L);
  return 0;
}

// Runs one step. If it raises, prints the error on stderr and returns false.
bool Protected(lua_State* L, lua_CFunction step, Game& game) {
  lua_pushcfunction(L, step);
  lua_pushlightuserdata(L, &game);
  if (lua_pcall(L, 1, 0, 0) == LUA_OK) return true;
  PrintError(lua_type(L, -1) == LUA_TSTRING ? lua_tostring(L, -1) : "(error object is not a string)");
  lua_pop(L, 1);
  return false;
}

int RunFrames(lua_State* L, Game& game) {
  Clock::time_point next = Clock::now();
  while (!game.quit.requested && !Interrupted() && !WatchedFileChanged()) {
    if (game.frame == game.options.frames) {
      char text[64];
      std::snprintf(text, sizeof text, "frame %lld has passed without player.quit", static_cast<long long>(game.frame));
      PrintError(text);
      return kOutOfFrames;
    }
    std::this_thread::sleep_until(next);
    // After a slow frame the next one starts at once, but lost time is not made up for.
    next = std::max(next + kFrameTime, Clock::now());
    ++game.frame;
    BeginSlice("frame " + std::to_string(game.frame));
    if (!Protected(L, RunFrame, game)) return kFailed;
    EndSlice();
  }
  return game.quit.status;
}

int PlayIn(lua_State* L, Game& game) {
  if (!Protected(L, Start, game)) return kFailed;
  const int status = Protected(L, RunScript, game) ? RunFrames(L, game) : kFailed;
  Protected(L, End, game);
  return status;
}

int PlayOnce(Game& game) {
  game.frame = 0;
  game.quit = {};
  game.closing = false;
  OpenReports(game.options.strict);
  if (game.options.watch) WatchScript(game.argv[game.options.script]);
  if (game.options.timeline) OpenTimeline(*game.options.timeline, game.argv[game.options.script]);
  lua_State* L = luaL_newstate();
  if (L == nullptr) {
    PrintError("cannot create state: not enough memory");
    return kFailed;
  }
  const int status = PlayIn(L, game);
  Close(L, game);
  return Finish(status);
}

// Called after a run with the exit status `status`. With --watch, plays the script again after each change, until
// Ctrl-C. Returns the status of the last run.
int PlayAgain(Game& game, int status) {
  while (game.options.watch && !Interrupted()) {
    std::fprintf(stderr, "%s[watch]%s the run has ended with status %d\n", Yellow(), ResetColour(), status);
    if (!WaitForChange()) return kInterrupted;
    tarn::velora::offline::Reset();
    status = PlayOnce(game);
  }
  return status;
}

}  // namespace

int Play(Game& game) { return PlayAgain(game, PlayOnce(game)); }

}  // namespace player
