#include "player/terminal.h"

#include <cstdio>
#include <cstdlib>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace player {
namespace {

bool isTerminal = false;
bool hasColour = false;

#if defined(_WIN32)

void PrepareStreams() {
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  // Unbuffered, so that lines keep their order if both streams are the same pipe.
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  std::setvbuf(stderr, nullptr, _IONBF, 0);
}

// Returns whether the stream is a console that interprets escape codes, after enabling them.
bool OpenTerminal(std::FILE* stream) {
  const auto console = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) != 0 && SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

#else

void PrepareStreams() { std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ); }

bool OpenTerminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

#endif

const char* Code(const char* code) { return hasColour ? code : ""; }

}  // namespace

void PrepareOutput() {
  PrepareStreams();
  isTerminal = OpenTerminal(stdout);
  const char* noColour = std::getenv("NO_COLOR");
  hasColour = OpenTerminal(stderr) && (noColour == nullptr || *noColour == '\0');
}

bool IsTerminal() { return isTerminal; }
bool HasColour() { return hasColour; }
const char* Yellow() { return Code("\033[33m"); }
const char* ResetColour() { return Code("\033[0m"); }

void PrintError(const char* text) {
  std::fprintf(stderr, "%svelora-play:%s %s\n", Code("\033[31m"), ResetColour(), text);
}

}  // namespace player
