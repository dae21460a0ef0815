// Wine's header plus what Visual C++'s has in addition.
#pragma once
#include_next <signal.h>
typedef int sig_atomic_t;
