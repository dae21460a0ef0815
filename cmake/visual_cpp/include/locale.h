// Wine's header, with the additional declarations of Visual C++'s.
#pragma once
#include_next <locale.h>
#ifdef __cplusplus
extern "C" __declspec(dllimport) unsigned int __cdecl ___lc_codepage_func(void);
#endif
