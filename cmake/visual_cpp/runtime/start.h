// What the entry points of programs and libraries share.
#pragma once

extern "C" {
bool StartModule();        // runs the initialisers of this program or library
void __cdecl EndModule();  // runs what was registered with atexit
}
