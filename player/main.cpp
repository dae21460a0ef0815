// velora-play: plays a script against the module and the offline runtime, as a game would, about 60 frames a second.
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "offline/control.h"
#include "player/interrupt.h"
#include "player/library.h"
#include "player/observer.h"
#include "player/options.h"
#include "player/run.h"
#include "player/terminal.h"

namespace player {
namespace {

constexpr int kBadArguments = 64;

int PlayGame(int argc, char** argv, const Options& options) {
  CatchInterrupt();
  tarn::velora::offline::SetTrace(options.trace);
  tarn::velora::offline::SetLogColour(HasColour());
  OpenObserver();
  Game game{LoadModule(options.module ? *options.module : DefaultModule()), argc, argv, options};
  const int status = Play(game);
  tarn::velora::offline::Stop();
  return status;
}

int Main(int argc, char** argv) {
  PrepareOutput();
  Options options;
  try {
    options = ParseOptions(argc, argv);
  } catch (const std::invalid_argument& error) {
    PrintError(error.what());
    std::fputs(kUsage, stderr);
    return kBadArguments;
  }
  if (options.task == Options::Task::kPlay) return PlayGame(argc, argv, options);
  std::fputs(options.task == Options::Task::kHelp ? kHelp : kVersion, stdout);
  return 0;
}

}  // namespace
}  // namespace player

int main(int argc, char** argv) {
  try {
    return player::Main(argc, argv);
  } catch (const std::exception& error) {
    player::PrintError(error.what());
    return player::kFailed;
  }
}
