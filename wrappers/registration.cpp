// The module's registration list, joined at compile time from the rows of its families.
#include "wrappers/registration.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "events/callbacks.h"
#include "wrappers/lifecycle.h"
#include "wrappers/payment.h"
#include "wrappers/services.h"
#include "wrappers/social.h"

namespace luavelora {
namespace {

// One array with the rows of all, and an empty row at the end.
template <std::size_t... sizes>
constexpr auto Join(const luaL_Reg (&... lists)[sizes]) {
  std::array<luaL_Reg, (sizes + ... + 1)> joined{};
  auto* end = joined.data();
  ((end = std::copy(lists, lists + sizes, end)), ...);
  return joined;
}

constexpr auto kRows =
    Join(kLifecycleWrappers, kPaymentWrappers, kSocialWrappers, kServiceWrappers, kCallbackAccessors);

}  // namespace

const luaL_Reg* const kModuleFunctions = kRows.data();

}  // namespace luavelora
