// The common part of the entry points of programs and libraries.
#pragma once

extern "C" {
bool StartModule();        // runs the initializers of this program or library
void __cdecl EndModule();  // runs the functions registered with atexit
}
