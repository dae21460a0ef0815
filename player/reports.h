// The reports of --strict. They determine the exit status.
#pragma once

namespace player {

// Sets whether reports are printed and counted. Resets the count.
void OpenReports(bool strict);

// Returns whether --strict was given.
bool IsStrict();

// Prints "[strict] LINE" on stderr, with a printf format. Does nothing without --strict.
#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
void Report(const char* format, ...);

// Counts an error of a callback. The caller prints it.
void CountError();

// Returns whether anything was reported or counted with --strict.
bool HasReports();

}  // namespace player
