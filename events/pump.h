// The per-frame pass: takes every queued event from the SDK and hands each to the script's callback.
#pragma once

#include "binding/boundary.h"

namespace luavelora {

// Runs one pass. When it gives a failure, the batch has been released and the caller is to raise it. Callbacks'
// errors are logged, so is a finaliser's error that surfaces while arguments are built; neither ends the pass.
Outcome RunPass(lua_State* L);

}  // namespace luavelora
