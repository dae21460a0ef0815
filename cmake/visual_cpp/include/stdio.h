// Wine's header, with the additional declarations of Visual C++'s.
#pragma once
#include_next <stdio.h>
#include <wchar.h>

#ifdef __cplusplus
extern "C" __declspec(dllimport) errno_t
    __cdecl _get_stream_buffer_pointers(FILE* file, char*** base, char*** next, int** count);
inline int vfscanf(FILE* file, const char* format, va_list args) {
  return __stdio_common_vfscanf(_CRT_INTERNAL_LOCAL_SCANF_OPTIONS, file, format, nullptr, args);
}
inline int vscanf(const char* format, va_list args) { return vfscanf(stdin, format, args); }
inline int vsscanf(const char* text, const char* format, va_list args) {
  return __stdio_common_vsscanf(_CRT_INTERNAL_LOCAL_SCANF_OPTIONS, text, (size_t)-1, format, nullptr, args);
}
#endif
