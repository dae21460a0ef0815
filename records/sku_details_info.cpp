// `SkuDetailsInfo`: the store's description of an item.
#include <array>
#include <tuple>

#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::SkuDetailsInfo;

Outcome New(lua_State* L) {
  std::array<const char*, 7> strings;
  for (int i = 1; i <= 7; ++i)
    if (!lua_isstring(L, i)) return Refusal();
  int index = 0;
  for (const char*& string : strings) string = TextArgument(L, ++index);
  return NewObject<SkuDetailsInfo>(L, [&strings] { return std::apply(SkuDetailsInfo::New, strings); });
}

const luaL_Reg kFunctions[] = {
    Row<Collect<SkuDetailsInfo>>("__gc"),
    Row<RecordToString<SkuDetailsInfo>>("__tostring"),
#define VELORA_FIELD(name, Family) \
  VELORA_GETTER(SkuDetailsInfo, name, Family), VELORA_SETTER(SkuDetailsInfo, name, Family),
#include "platform/sku_details_info.def"
    {nullptr, nullptr},
};

}  // namespace

void RegisterSkuDetailsInfo(lua_State* L) { RegisterClass<SkuDetailsInfo>(L, kFunctions, Entry<New>); }

}  // namespace luavelora
