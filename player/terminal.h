// The program's output streams and their colours. Not thread-safe.
#pragma once

namespace player {

// Puts both streams in binary mode and line-buffers stdout, so that output is identical on all systems and in order.
// Must be called before the other functions.
void PrepareOutput();

// Returns whether stdout is a terminal.
bool IsTerminal();

// Returns whether to use colours on stderr: it is a terminal, and NO_COLOR is not set.
bool HasColour();

// Return the escape codes to put around yellow text on stderr; empty strings without colours.
const char* Yellow();
const char* ResetColour();

// Prints "velora-play: TEXT" on stderr.
void PrintError(const char* text);

}  // namespace player
