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
  std::int64_t frames = std::numeric_limits<std::int64_t>::max();  // the run ends after as many
  std::optional<std::filesystem::path> timeline;                   // the file to write the run to
  bool strict = false;                                             // report refused calls
  bool trace = false;                                              // show SDK calls
  bool watch = false;                                              // play again after each change
  int script = 1;  // index of the script's name in argv; its arguments follow
};

// The name of a script that is read from standard input.
inline constexpr const char* kStdin = "-";

// Throws std::invalid_argument with a message for the user.
Options ParseOptions(int argc, char** argv);

// What --help and --version print, and one line for wrong options.
extern const char* const kHelp;
extern const char* const kVersion;
extern const char* const kUsage;

}  // namespace player
