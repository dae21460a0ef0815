#include "constants/constants.h"

#include <limits>

#include "binding/set_constant.h"
#include "platform/const_prop.h"

namespace luavelora {

static const std::string& LuaValue(const std::string& text) { return text; }

static lua_Integer LuaValue(std::int32_t value) { return value; }

lua_Integer LuaValue(float value) {
  constexpr float kLimit = 2147483648.0f;
  if (value >= kLimit) return std::numeric_limits<std::int32_t>::max();
  if (value < -kLimit) return std::numeric_limits<std::int32_t>::min();
  return value == value ? static_cast<std::int32_t>(value) : 0;
}

namespace {

template <class Kind>
void Set(lua_State* L, const char* name, const void* value) {
  SetConstant(L, name, LuaValue(*static_cast<const Kind*>(value)));
}

// Not constexpr, since not every compiler takes the address of imported data as a constant expression.
const struct {
  const char* name;
  const void* value;
  void (*set)(lua_State* L, const char* name, const void* value);
} kSdkConstants[] = {
#define VELORA_CONSTANT(name, kind) {#name, &tarn::velora::ConstProp::name, Set<tarn::velora::ConstProp::kind>},
#include "platform/constants.def"
};

constexpr struct {
  const char* name;
  lua_Integer value;
} kModuleConstants[] = {
#define VELORA_MODULE_CONSTANT(name, value) {#name, value},
#include "constants/module_constants.def"
};

}  // namespace

void RegisterSdkConstants(lua_State* L) {
  for (const auto& constant : kSdkConstants) constant.set(L, constant.name, constant.value);
  for (const auto& constant : kModuleConstants) SetConstant(L, constant.name, constant.value);
}

}  // namespace luavelora
