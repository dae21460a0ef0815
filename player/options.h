// The command line of velora-play.
#pragma once

#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>

namespace player {

struct Options {
  enum class Task { kPlay, kHelp, kVersion };

  Task task = Task::kPlay;
  std::optional<std::filesystem::path> module;  // the library to load instead of the one beside the program
  std::int64_t frames = std::numeric_limits<std::int64_t>::max();  // the run ends after this many
  std::optional<std::filesystem::path> timeline;                   // the file to write the run to
  bool strict = false;                                             // report silent mistakes
  bool trace = false;                                              // show SDK calls and events
  bool watch = false;                                              // play again after each change
  int script = 1;  // index of the script's name in argv; its arguments follow
};

// The name of a script that is read from standard input.
inline constexpr const char* kStdin = "-";

// Returns the options given in `argv`. Throws std::invalid_argument with a message for the user.
Options ParseOptions(int argc, char** argv);

// The output of --help and --version, and the usage line for a wrong command line.
extern const char* const kHelp;
extern const char* const kVersion;
extern const char* const kUsage;

}  // namespace player
