// Wine's header, with the additional declarations that GoogleTest uses.
#pragma once
#include_next <crtdbg.h>
#define _CRTDBG_MODE_FILE 0x1
#define _CRTDBG_MODE_DEBUG 0x2
#define _CRTDBG_FILE_STDERR ((void*)-5)
#define _CrtSetReportFile(type, file) ((void*)0)
