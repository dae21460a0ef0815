#include "player/options.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <lua.hpp>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "module/lua_velora.h"

#define USAGE "usage: velora-play [OPTION...] SCRIPT [ARG...]\n"

namespace player {
namespace {

constexpr char kHelpText[] = USAGE R"(
Plays a Lua script against the module and the offline runtime, about 60 frames a
second, until the script quits. The script - is read from standard input.

  --strict         report silent mistakes on stderr: refused calls, lost values,
                   names that do not exist, events without a callback
  --trace          show the SDK calls and the events on stderr
  --timeline FILE  write a trace of the run to FILE, for Perfetto or the tools
                   of a browser
  --watch          play again when the script or a module that it requires
                   changes
  --frames N       end after N frames
  --module FILE    load the module from this library instead of the one that is
                   installed with the program
  --help           show this text
  --version        show the version

The script has two tables that do not exist in a game. `player` controls the
run:
  player.quit([status])    end after this frame; the default status is 0
  player.onFrame(f)        call f(frame) after each frame's update; nil: nothing
  player.terminal          whether stdout is a terminal
`offline` controls the runtime that replaces the SDK:
  offline.calls()          return the SDK calls since the last time, as lines
  offline.answer(name, value)
                           set the result of an operation; nil restores the
                           default
  offline.post(event, ...)
                           queue an event, given by name or number, with the
                           arguments of its callback
  offline.download(operation, ...)
                           call onInited, onProgress or onFinish of the download
                           handler
  offline.log()            return the log lines since the last time

The exit status is that of player.quit, or
  1    an error outside callbacks, or a file that cannot be loaded
  2    the N frames of --frames have passed
  3    instead of 0, with --strict: something was reported, or a callback has
       raised an error
  64   a wrong command line
  130  Ctrl-C; a second one ends the program at once
)";

constexpr std::size_t LongestLine(std::string_view text) {
  std::size_t longest = 0;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size());
    longest = std::max(longest, length);
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return longest;
}
static_assert(LongestLine(kHelpText) <= 80, "the help must fit in 80 columns");

// Throws an error in the form of Lua's argument errors.
[[noreturn]] void FailArgument(const std::string& function, const std::string& reason) {
  throw std::invalid_argument("bad argument #1 to '" + function + "' (" + reason + ")");
}

std::int64_t ParseFrames(const std::string& option, const char* text) {
  std::int64_t frames = 0;
  const char* end = text + std::strlen(text);
  const auto [rest, error] = std::from_chars(text, end, frames);
  if (error != std::errc() || rest != end || frames <= 0)
    FailArgument(option, "positive integer expected, got '" + std::string(text) + "'");
  return frames;
}

bool IsOption(const char* argument) { return *argument == '-' && std::strcmp(argument, kStdin) != 0; }

}  // namespace

Options ParseOptions(int argc, char** argv) {
  Options options;
  int next = 1;
  while (next < argc && IsOption(argv[next])) {
    const std::string option = argv[next++];
    const auto value = [&]() -> const char* {
      if (next == argc) FailArgument(option, "value expected");
      return argv[next++];
    };
    if (option == "--module") {
      options.module = value();
    } else if (option == "--frames") {
      options.frames = ParseFrames(option, value());
    } else if (option == "--timeline") {
      options.timeline = value();
    } else if (option == "--strict") {
      options.strict = true;
    } else if (option == "--trace") {
      options.trace = true;
    } else if (option == "--watch") {
      options.watch = true;
    } else if (option == "--help") {
      options.task = Options::Task::kHelp;
      return options;
    } else if (option == "--version") {
      options.task = Options::Task::kVersion;
      return options;
    } else {
      throw std::invalid_argument("unrecognized option '" + option + "'");
    }
  }
  if (next >= argc) FailArgument("velora-play", "script expected, got no value");
  options.script = next;
  if (options.watch && std::strcmp(argv[next], kStdin) == 0)
    FailArgument("--watch", "file expected, got standard input");
  return options;
}

const char* const kUsage = USAGE;

const char* const kVersion = "velora-play " LUA_VELORA_VERSION ", " LUA_VERSION "\n";

const char* const kHelp = kHelpText;

}  // namespace player
