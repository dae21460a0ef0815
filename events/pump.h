// The per-frame pass: takes every queued event from the SDK and hands each to the script's callback.
#pragma once

#include "binding/boundary.h"

namespace luavelora {

// Runs one pass. On failure the batch has been released and the caller must raise the error. Errors of callbacks, and
// of finalizers that run while arguments are built, are logged and do not end the pass.
Outcome RunPass(lua_State* L);

}  // namespace luavelora
