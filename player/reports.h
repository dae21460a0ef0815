// What --strict reports, and the exit status that follows from it.
#pragma once

namespace player {

// Sets whether reports are printed and counted. Forgets the ones before.
void OpenReports(bool strict);

// Returns whether --strict is given.
bool IsStrict();

// Prints "[strict] LINE" on stderr, from a format as printf takes it. Does nothing without --strict.
#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
void Report(const char* format, ...);

// Counts an error of a callback, of which the caller tells.
void CountError();

// Returns whether anything was reported or counted with --strict.
bool HasReports();

}  // namespace player
