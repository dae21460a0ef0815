// Wine's header. The current runtime exports its functions under C names.
#pragma once
extern "C" {
#include_next <eh.h>
}
