// Wine's header plus what Visual C++'s has in addition.
#pragma once
#include_next <locale.h>
#ifdef __cplusplus
extern "C" __declspec(dllimport) unsigned int __cdecl ___lc_codepage_func(void);
#endif
