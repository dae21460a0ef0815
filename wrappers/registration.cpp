#include "wrappers/registration.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "events/callbacks.h"
#include "wrappers/record_parameter.h"
#include "wrappers/wrappers.h"

namespace luavelora {
namespace {

constexpr luaL_Reg kWrappers[] = {
#define VELORA_OPERATION(name) Row<Wrapper<&tarn::velora::name>>(#name),
#define VELORA_OPERATION_OWN_RULES(name) Row<wrappers::name>(#name),
#include "platform/operations.def"
};

constexpr auto kRows = [] {
  std::array<luaL_Reg, std::size(kWrappers) + std::size(kCallbackAccessors) + 1> rows{};
  std::copy(std::begin(kCallbackAccessors), std::end(kCallbackAccessors),
            std::copy(std::begin(kWrappers), std::end(kWrappers), rows.begin()));
  return rows;
}();

}  // namespace

const std::span<const luaL_Reg> kModuleFunctions = kRows;

}  // namespace luavelora
