// `SkuDetailsInfo`: the store's description of an item.
#include "platform/sku_details_info.h"

#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::SkuDetailsInfo;

Outcome New(lua_State* L) {
  constexpr int kTexts = 7;
  const char* texts[kTexts];
  for (int i = 0; i < kTexts; ++i)
    if (!lua_isstring(L, i + 1)) return Refusal();
  for (int i = 0; i < kTexts; ++i) texts[i] = TextArgument(L, i + 1);
  return GiveRecord(L, SkuDetailsInfo::New(texts[0], texts[1], texts[2], texts[3], texts[4], texts[5], texts[6]));
}

const luaL_Reg kFunctions[] = {
    {"new", Entry<New>},
    {"__gc", Entry<Collect<SkuDetailsInfo>>},
    {"__tostring", Entry<RecordToString<SkuDetailsInfo>>},
#define VELORA_FIELD(name, Family) \
  VELORA_GETTER(SkuDetailsInfo, name, Family), VELORA_SETTER(SkuDetailsInfo, name, Family),
#include "platform/sku_details_info.def"
#undef VELORA_FIELD
    {nullptr, nullptr},
};

}  // namespace

void RegisterSkuDetailsInfo(lua_State* L) { RegisterClass<SkuDetailsInfo>(L, {kFunctions}); }

}  // namespace luavelora
