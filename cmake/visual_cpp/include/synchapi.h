// Wine's header needs windows.h.
#pragma once
#ifndef _WINDOWS_
#include <windows.h>
#endif
#include_next <synchapi.h>
