// Wine's header, with the additional declarations of Visual C++'s.
#pragma once
#include_next <time.h>

#define TIME_UTC 1
struct _timespec64 {
  __time64_t tv_sec;
  long tv_nsec;
};
struct timespec {
  time_t tv_sec;
  long tv_nsec;
};
#ifdef __cplusplus
extern "C" __declspec(dllimport) int __cdecl _timespec64_get(struct timespec* time, int base);
inline errno_t localtime_s(struct tm* to, const time_t* from) { return _localtime64_s(to, from); }
inline int timespec_get(struct timespec* time, int base) { return _timespec64_get(time, base); }
#endif
