// Wine's header, with the additional declarations that GoogleTest uses.
#pragma once
#include_next <excpt.h>
#ifdef __cplusplus
extern "C" {
#endif
unsigned long __cdecl _exception_code(void);
void* __cdecl _exception_info(void);
#ifdef __cplusplus
}
#endif
#define GetExceptionCode _exception_code
#define GetExceptionInformation (struct _EXCEPTION_POINTERS*)_exception_info
