// The bodies of the wrappers whose rules do not follow from their operation's type. Each has its operation's name.
#pragma once

#include "binding/wrapper.h"
#include "platform/operations.h"

namespace luavelora::wrappers {

#define VELORA_OPERATION(name)
#define VELORA_OPERATION_OWN_RULES(name) Outcome name(lua_State* L);
#include "platform/operations.def"

}  // namespace luavelora::wrappers
