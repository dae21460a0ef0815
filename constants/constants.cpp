// Copies the SDK's statics into the module table, as they are when the module starts.
#include "constants/constants.h"

#include <limits>

#include "binding/set_constant.h"
#include "platform/const_prop.h"

namespace luavelora {
namespace {

const std::string& LuaValue(const std::string& text) { return text; }

lua_Integer LuaValue(std::int32_t value) { return value; }

// Truncated toward zero; what lies outside 32 bits is clamped, and what is no number is 0.
lua_Integer LuaValue(float value) {
  constexpr float kLimit = 2147483648.0f;
  if (value >= kLimit) return std::numeric_limits<std::int32_t>::max();
  if (value < -kLimit) return std::numeric_limits<std::int32_t>::min();
  return value == value ? static_cast<std::int32_t>(value) : 0;
}

}  // namespace

void RegisterSdkConstants(lua_State* L) {
#define VELORA_CONSTANT(name, kind) SetConstant(L, #name, LuaValue(tarn::velora::ConstProp::name));
#include "platform/constants.def"
#undef VELORA_CONSTANT
#define VELORA_MODULE_CONSTANT(name, value) SetConstant(L, #name, lua_Integer{value});
#include "constants/module_constants.def"
#undef VELORA_MODULE_CONSTANT
}

}  // namespace luavelora
