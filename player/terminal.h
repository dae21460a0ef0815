// What the program writes to, and how it marks what matters there. For the main thread.
#pragma once

namespace player {

// Makes the same bytes come out on every system, and no line of one stream wait while the other goes on. Finds out
// which streams are terminals; to be called first.
void PrepareOutput();

// Whether stdout is a terminal.
bool IsTerminal();

// Whether stderr shows colours: it is a terminal, and the user has not set NO_COLOR.
bool HasColour();

// The codes around a word on stderr that tells of a warning; empty where there are no colours.
const char* Yellow();
const char* Plain();

// Prints "velora-play: TEXT" on stderr.
void Complain(const char* text);

}  // namespace player
