// The entry point of a library.
#include <windows.h>

#include "start.h"

extern "C" BOOL WINAPI _DllMainCRTStartup(HINSTANCE, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) return StartModule();
  if (reason == DLL_PROCESS_DETACH) EndModule();
  return TRUE;
}
