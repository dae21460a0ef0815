// The per-frame pass: takes all queued events from the SDK and calls the script's callback for each.
#pragma once

#include "binding/boundary.h"

namespace luavelora {

// Runs one pass and returns no results, or the error that ended the pass. In both cases the events have been released.
// Errors of callbacks, and of finalizers that run while arguments are built, are logged and do not end the pass.
Outcome RunPass(lua_State* L);

}  // namespace luavelora
