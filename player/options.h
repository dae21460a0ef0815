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
  std::optional<std::filesystem::path> module;  // the library to load, where it is not the one that came along
  std::int64_t frames = std::numeric_limits<std::int64_t>::max();  // after which the run ends
  bool strict = false;                                             // report refused calls
  bool trace = false;                                              // show SDK calls
  int script = 1;  // where the script's name stands in argv; the script's own arguments follow
};

// Throws std::invalid_argument with a text that says what is wrong.
Options ParseOptions(int argc, char** argv);

// What --help and --version print, and one line for who got the options wrong.
extern const char* const kHelp;
extern const char* const kVersion;
extern const char* const kUsage;

}  // namespace player
