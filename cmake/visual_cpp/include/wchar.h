// Wine's header, with Visual C++'s mbstate_t and additional declarations.
#pragma once
#include <corecrt.h>
#include <errno.h>

typedef struct _Mbstatet {
  unsigned long _Wchar;
  unsigned short _Byte, _State;
} _Mbstatet;

#define mbstate_t _Wine_mbstate_t
#define mbrlen _Wine_mbrlen
#define mbrtowc _Wine_mbrtowc
#define mbsrtowcs _Wine_mbsrtowcs
#define wcrtomb _Wine_wcrtomb
#define wcsrtombs _Wine_wcsrtombs
#include_next <wchar.h>
#undef mbstate_t
#undef mbrlen
#undef mbrtowc
#undef mbsrtowcs
#undef wcrtomb
#undef wcsrtombs
#ifndef _VELORA_MBSTATE
#define _VELORA_MBSTATE
typedef _Mbstatet mbstate_t;

#ifdef __cplusplus
extern "C" {
__declspec(dllimport) size_t __cdecl mbrlen(const char*, size_t, mbstate_t*);
__declspec(dllimport) size_t __cdecl mbrtowc(wchar_t*, const char*, size_t, mbstate_t*);
__declspec(dllimport) size_t __cdecl mbsrtowcs(wchar_t*, const char**, size_t, mbstate_t*);
__declspec(dllimport) size_t __cdecl wcrtomb(char*, wchar_t, mbstate_t*);
__declspec(dllimport) size_t __cdecl wcsrtombs(char*, const wchar_t**, size_t, mbstate_t*);
inline int fwide(FILE*, int mode) { return mode; }
inline int mbsinit(const mbstate_t* state) { return state == nullptr || state->_Wchar == 0; }
int vfwscanf(FILE* file, const wchar_t* format, va_list args);
int vswscanf(const wchar_t* text, const wchar_t* format, va_list args);
int vwscanf(const wchar_t* format, va_list args);
inline long double wcstold(const wchar_t* text, wchar_t** end) { return wcstod(text, end); }
}
#endif
#endif
