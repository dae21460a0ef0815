// Wine's header, with the additional declarations of Visual C++'s.
#pragma once
#include_next <signal.h>
typedef int sig_atomic_t;
