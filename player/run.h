// Runs a script in a new Lua state: the script, then its frames, then the module's shutdown.
#pragma once

#include <cstdint>
#include <lua.hpp>

#include "player/library.h"
#include "player/options.h"
#include "player/player_table.h"

namespace player {

inline constexpr int kFailed = 1;       // the script raised an error, or a file could not be loaded
inline constexpr int kOutOfFrames = 2;  // all frames passed without player.quit
inline constexpr int kReported = 3;     // instead of 0, if --strict has reported or counted anything
inline constexpr int kInterrupted = 130;

// The settings and the state of a run.
struct Game {
  Module module;
  int argc;
  char** argv;
  const Options& options;
  std::int64_t frame = 0;
  QuitRequest quit = {};
  bool closing = false;  // the Lua state is being closed
};

// Plays the script, with --watch again after each change, and returns the exit status. Does not return if the script
// calls os.exit, which ends the run in the same way and then the process.
int Play(Game& game);

}  // namespace player
