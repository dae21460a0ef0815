// Wine's header, which defines `inline` as a macro.
#pragma once
#include_next <windef.h>
#ifdef __cplusplus
#undef inline
#endif
