// Wine's header, with WCHAR as wchar_t and without a function that is built into Clang.
#pragma once
#define WINE_UNICODE_NATIVE
#define _InterlockedCompareExchange128 _Wine_InterlockedCompareExchange128
#include_next <winnt.h>
#undef _InterlockedCompareExchange128
