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

  --strict         report on stderr what the module passes over: refused calls,
                   lost values, names that do not exist, events without a
                   callback
  --trace          show the SDK calls and the events on stderr
  --timeline FILE  write the run to FILE, which Perfetto and browsers' tools
                   open
  --watch          play again when the script, or a module that it requires,
                   changes
  --frames N       end when N frames have passed
  --module FILE    load this library as the module, not the one that came with
                   the program
  --help           show this text
  --version        show the version

A script has two tables that it does not have in a game. `player` is this
program:
  player.quit([status])    end after this frame; the default status is 0
  player.onFrame(f)        call f(frame) after each frame's update; nil: nothing
  player.terminal          whether the output goes to a terminal
`offline` is the runtime that replaces the SDK:
  offline.calls()          the SDK calls since the last time, as lines
  offline.answer(name, value)
                           what an operation returns from now on; nil restores
                           the default
  offline.post(event, ...)
                           queue an event, by its name or number, with what its
                           callback receives
  offline.download(operation, ...)
                           call onInited, onProgress or onFinish of the download
                           handler
  offline.log()            the log lines since the last time

The exit status is the one that the script quits with, or
  1    an error outside callbacks, or something cannot be loaded
  2    all frames have passed
  3    instead of 0, if --strict has reported anything or a callback has raised
       an error
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
static_assert(LongestLine(kHelpText) <= 80, "the help fits a terminal of 80 columns");

// Errors have the form of Lua's own.
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
