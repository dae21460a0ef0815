// One run of a script: a Lua state of its own, the script, its frames, and the end in good order.
#pragma once

#include <cstdint>
#include <lua.hpp>

#include "player/library.h"
#include "player/options.h"
#include "player/player_table.h"

namespace player {

inline constexpr int kFailed = 1;       // the script raised, or something could not be loaded
inline constexpr int kOutOfFrames = 2;  // all frames passed without player.quit
inline constexpr int kReported = 3;     // instead of 0, if --strict has reported anything or a callback has raised
inline constexpr int kInterrupted = 130;

// What a run needs, and its state.
struct Game {
  Module module;
  int argc;
  char** argv;
  const Options& options;
  std::int64_t frame = 0;
  QuitRequest quit = {};
  bool closing = false;  // the Lua state is being closed
};

// Plays the script, with --watch again after each change, and returns the exit status. os.exit in the script does not
// return from here: it ends the run in the same way and then the process.
int Play(Game& game);

}  // namespace player
