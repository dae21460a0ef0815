// Wine's header, with the additional declarations of Visual C++'s.
#pragma once
#include_next <stdlib.h>

#ifdef __cplusplus
extern "C" {
__declspec(dllimport) int __cdecl at_quick_exit(void(__cdecl* function)(void));
__declspec(dllimport) __declspec(noreturn) void __cdecl quick_exit(int status);
__declspec(dllimport) unsigned int __cdecl _set_abort_behavior(unsigned int flags, unsigned int mask);
}
inline long abs(long x) noexcept { return labs(x); }
inline long long abs(long long x) noexcept { return llabs(x); }
inline ldiv_t div(long x, long y) noexcept { return ldiv(x, y); }
inline lldiv_t div(long long x, long long y) noexcept { return lldiv(x, y); }
#endif
