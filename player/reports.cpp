#include "player/reports.h"

#include <cstdarg>
#include <cstdio>

#include "player/terminal.h"

namespace player {
namespace {

bool isStrict = false;
bool hasReports = false;

}  // namespace

void OpenReports(bool strict) {
  isStrict = strict;
  hasReports = false;
}

bool IsStrict() { return isStrict; }

void Report(const char* format, ...) {
  if (!isStrict) return;
  hasReports = true;
  std::fprintf(stderr, "%s[strict]%s ", Yellow(), ResetColour());
  std::va_list arguments;
  va_start(arguments, format);
  std::vfprintf(stderr, format, arguments);
  va_end(arguments);
  std::fputc('\n', stderr);
}

void CountError() { hasReports = hasReports || isStrict; }

bool HasReports() { return hasReports; }

}  // namespace player
