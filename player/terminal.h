// The program's output streams and their colours. For the main thread.
#pragma once

namespace player {

// Puts both streams in binary mode and line-buffers stdout, so that output is identical on all systems and in order.
// Finds out which streams are terminals. Call it first.
void PrepareOutput();

// Returns whether stdout is a terminal.
bool IsTerminal();

// Returns whether stderr shows colours: it is a terminal and NO_COLOR is not set.
bool HasColour();

// The codes around a warning's first word on stderr; empty without colours.
const char* Yellow();
const char* Plain();

// Prints "velora-play: TEXT" on stderr.
void Complain(const char* text);

}  // namespace player
