// The signal handler only sets a flag, since it may run at any point, and on Windows in a thread of its own.
#include "player/interrupt.h"

#include <atomic>
#include <chrono>
#include <csignal>

namespace player {
namespace {

using Clock = std::chrono::steady_clock;
constexpr Clock::duration kGracePeriod = std::chrono::milliseconds(250);

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void OnInterrupt(int signal) {
  std::signal(signal, SIG_DFL);
  interrupted = true;
}

}  // namespace

void CatchInterrupt() {
  if (std::signal(SIGINT, OnInterrupt) == SIG_IGN) std::signal(SIGINT, SIG_IGN);
}

bool Interrupted() { return interrupted; }

void StopWhenInterrupted(lua_State* L) {
  if (!interrupted) return;
  static const Clock::time_point seen = Clock::now();
  if (Clock::now() - seen < kGracePeriod) return;
  // If the script catches the error, it gets the next one after one instruction.
  lua_sethook(L, lua_gethook(L), lua_gethookmask(L), 1);
  luaL_where(L, 0);
  lua_pushliteral(L, "interrupted");
  lua_concat(L, 2);
  lua_error(L);
}

}  // namespace player
