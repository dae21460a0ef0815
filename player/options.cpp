#include "player/options.h"

#include <charconv>
#include <cstring>
#include <lua.hpp>
#include <stdexcept>
#include <string>
#include <system_error>

#define USAGE "usage: velora-play [--module FILE] [--frames N] [--strict] [--timeline FILE] [--trace] SCRIPT [ARG...]\n"

namespace player {
namespace {

std::int64_t ParseFrames(const char* text) {
  std::int64_t frames = 0;
  const char* end = text + std::strlen(text);
  const auto [rest, error] = std::from_chars(text, end, frames);
  if (error != std::errc() || rest != end || frames <= 0)
    throw std::invalid_argument("--frames takes a number from 1 on, not '" + std::string(text) + "'");
  return frames;
}

}  // namespace

Options ParseOptions(int argc, char** argv) {
  Options options;
  int next = 1;
  while (next < argc && argv[next][0] == '-') {
    const std::string option = argv[next++];
    const auto value = [&]() -> const char* {
      if (next == argc) throw std::invalid_argument(option + " takes a value");
      return argv[next++];
    };
    if (option == "--module") {
      options.module = value();
    } else if (option == "--frames") {
      options.frames = ParseFrames(value());
    } else if (option == "--timeline") {
      options.timeline = value();
    } else if (option == "--strict") {
      options.strict = true;
    } else if (option == "--trace") {
      options.trace = true;
    } else if (option == "--help") {
      options.task = Options::Task::kHelp;
      return options;
    } else if (option == "--version") {
      options.task = Options::Task::kVersion;
      return options;
    } else {
      throw std::invalid_argument("unknown option " + option);
    }
  }
  if (next >= argc) throw std::invalid_argument("no script given");
  options.script = next;
  return options;
}

const char* const kUsage = USAGE;

const char* const kVersion = "velora-play " VELORA_VERSION ", " LUA_VERSION "\n";

const char* const kHelp = USAGE R"(
Plays a Lua script against the module and the offline runtime, about 60 frames a second, until the script quits.

  --module FILE  load this library as the module, not the one that came with the program
  --frames N     end when N frames have passed
  --strict       report on stderr what the module passes over: refused calls, lost values, names that do not exist,
                 events without a callback
  --timeline FILE
                 write the run to a file that performance tools open
  --trace        show the SDK calls and the events on stderr
  --help         show this text
  --version      show the version

A script has two tables that it does not have in a game. `player` is this program:
  player.quit([status])            end after this frame; the status is 0 where none is given
  player.onFrame(f)                call f(frame) after each frame's update; nil ends that
  player.terminal                  whether the output goes to a terminal
`offline` is the runtime that stands in the SDK's place:
  offline.calls()                  the SDK calls since the last time, as lines
  offline.answer(name, value)      what an operation answers from now on; nil: as at the start
  offline.post(event, ...)         queue an event, by its name or number, with what its callback receives
  offline.download(operation, ...) call onInited, onProgress or onFinish of the download handlers
  offline.log()                    the log lines since the last time

The exit status is the one that the script quits with, 1 where it raises an error outside callbacks or something cannot
be loaded, 2 when all frames have passed, 3 instead of 0 if --strict has reported anything or a callback has raised, 64 for a wrong command line, 130 after Ctrl-C. A second Ctrl-C ends at once.
)";

}  // namespace player
