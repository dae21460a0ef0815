// The values of the SDK's constants. Each is different. A string constant is its own name in lower case
// ("velora.app_key"), so that call logs show which constant was passed and which values are hard-coded. An integer
// constant is its position in the list plus an offset.
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/const_prop.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"

namespace tarn::velora {
namespace {

enum Row : std::int32_t {
#define VELORA_CONSTANT(name, kind) kRowOf_##name,
#include "platform/constants.def"
};

constexpr std::int32_t kFirstNumber = 1000;
constexpr float kMaxPrice = 9999.75F;  // has a fraction, so that truncating it is noticed

// Unlike std::tolower, independent of the locale.
std::string Lower(std::string_view name) {
  std::string text(name);
  for (char& character : text) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
  }
  return text;
}

template <class Kind>
Kind ValueOf(std::string_view name, std::int32_t row) {
  if constexpr (std::is_same_v<Kind, ConstProp::String>) {
    return Lower(name);
  } else if constexpr (std::is_same_v<Kind, ConstProp::Float>) {
    return kMaxPrice;
  } else {
    return row == kRowOf_AUTH_UNLOGIN ? -1 : kFirstNumber + row;  // negative, so that a lost sign is noticed
  }
}

}  // namespace

#define VELORA_CONSTANT(name, kind) \
  const ConstProp::kind ConstProp::name = ValueOf<ConstProp::kind>("velora." #name, kRowOf_##name);
#include "platform/constants.def"

#define VELORA_SHARE_CONSTANT(name) const std::string ShareInfo::name = Lower("velora.SHARE_" #name);
#include "platform/share_constants.def"

#define VELORA_QUERY_RANK_CONSTANT(name) const std::string QueryRankInfo::name = Lower("velora." #name);
#include "platform/query_rank_constants.def"

}  // namespace tarn::velora
