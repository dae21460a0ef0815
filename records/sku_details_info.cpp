// `SkuDetailsInfo`: the store's description of an item.
#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::SkuDetailsInfo;

Outcome New(lua_State* L) {
  constexpr int kStrings = 7;
  const char* strings[kStrings];
  for (int i = 0; i < kStrings; ++i)
    if (!lua_isstring(L, i + 1)) return Refusal();
  for (int i = 0; i < kStrings; ++i) strings[i] = TextArgument(L, i + 1);
  return NewObject<SkuDetailsInfo>(L, [&strings] { return std::apply(SkuDetailsInfo::New, std::to_array(strings)); });
}

const luaL_Reg kFunctions[] = {
    Row<New>("new"),
    Row<Collect<SkuDetailsInfo>>("__gc"),
    Row<RecordToString<SkuDetailsInfo>>("__tostring"),
#define VELORA_FIELD(name, Family) \
  VELORA_GETTER(SkuDetailsInfo, name, Family), VELORA_SETTER(SkuDetailsInfo, name, Family),
#include "platform/sku_details_info.def"
    {nullptr, nullptr},
};

}  // namespace

void RegisterSkuDetailsInfo(lua_State* L) { RegisterClass<SkuDetailsInfo>(L, kFunctions); }

}  // namespace luavelora
