// `ProductInfo`: a store product, held as a private copy. The three map fields live in side maps until a flush.
#include "records/product_info.h"

#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {

using tarn::velora::IntMap;
using tarn::velora::ProductInfo;
using tarn::velora::StringMap;

FreshHolder BindProduct(const ProductInfo& source) {
  auto* holder = new ProductInfoHolder;
  FreshHolder owner(holder);
  holder->record = std::make_unique<ProductInfo>(source);
  holder->m_sdk_pids = std::make_shared<const StringMap>(source.sdkPids);
  holder->m_channel_goodsTypes = std::make_shared<const IntMap>(source.channelGoodsTypes);
  holder->m_jell_ratios = std::make_shared<const IntMap>(source.jellRatios);
  return owner;
}

ProductInfo& FlushProduct(ProductInfoHolder& holder) {
  holder.record->sdkPids = *holder.m_sdk_pids;
  holder.record->channelGoodsTypes = *holder.m_channel_goodsTypes;
  holder.record->jellRatios = *holder.m_jell_ratios;
  return *holder.record;
}

namespace {

Outcome New(lua_State* L) { return GiveHolder<ProductInfo>(L, BindProduct(ProductInfo())); }

Outcome ToString(lua_State* L) {
  return TextForm<ProductInfo>(L, [](ProductInfoHolder& holder, std::string& out) {
    const ProductInfo product = FlushProduct(holder);  // the SDK may call scripts, and those may set fields
    return tarn::velora::toString(product, out);
  });
}

template <auto member>
Outcome GetString(lua_State* L) {
  const auto* holder = Self<ProductInfo>(L);
  if (holder == nullptr) return Refusal();
  return TextResult(L, [holder](std::string& out) {
    out = (*holder->record).*member;
    return true;
  });
}

template <auto member>
Outcome SetString(lua_State* L) {
  const char* text = TextArgument(L, 2);  // may run script code, which may finish the object: so it comes first
  if (auto* holder = Self<ProductInfo>(L)) (*holder->record).*member = text == nullptr ? "" : text;
  return Outcome::Results(0);
}

template <auto member, auto push>
Outcome GetScalar(lua_State* L) {
  const auto* holder = Self<ProductInfo>(L);
  if (holder == nullptr) return Refusal();
  push(L, (*holder->record).*member);
  return Outcome::Results(1);
}

template <auto member, auto read>
Outcome SetScalar(lua_State* L) {
  if (auto* holder = Self<ProductInfo>(L)) (*holder->record).*member = read(L, 2);
  return Outcome::Results(0);
}

constexpr char kSdkPidsError[] = "self->m_sdk_pidsmust be table";
constexpr char kGoodsTypesError[] = "self->m_channel_goodsTypesmust be table";
constexpr char kJellRatiosError[] = "self->m_jell_ratiosmust be table";

#define VELORA_STRING(name) \
  {"get_" #name, Entry<GetString<&ProductInfo::name>>}, { "set_" #name, Entry<SetString<&ProductInfo::name>> }
#define VELORA_SCALAR(name, push, read)                         \
  {"get_" #name, Entry<GetScalar<&ProductInfo::name, push>>}, { \
    "set_" #name, Entry<SetScalar<&ProductInfo::name, read>>    \
  }
#define VELORA_MAP(name, sideMap, push, read, error)                                         \
  {"get_" #name, Entry<GetCache<ProductInfo, &ProductInfoHolder::sideMap, push>>}, {         \
    "set_" #name, Entry<SetCachedMap<ProductInfo, &ProductInfoHolder::sideMap, read, error>> \
  }

const luaL_Reg kFunctions[] = {
    {"new", Entry<New>},
    {"__gc", Entry<Collect<ProductInfo>>},
    {"__tostring", Entry<ToString>},
    VELORA_STRING(productId),
    VELORA_STRING(productName),
    VELORA_SCALAR(productPrice, family::PushNumber, family::ReadFloat),
    VELORA_SCALAR(exchangeRatio, family::PushInteger, family::ReadInt),
    VELORA_MAP(sdkPids, m_sdk_pids, PushStringMap, ReadStringMap, kSdkPidsError),
    VELORA_MAP(channelGoodsTypes, m_channel_goodsTypes, PushIntMap, ReadIntMap, kGoodsTypesError),
    VELORA_MAP(jellRatios, m_jell_ratios, PushIntMap, ReadIntMap, kJellRatiosError),
    VELORA_STRING(jellyExtra),
    VELORA_STRING(ffChannel),
    {nullptr, nullptr},
};

}  // namespace

void RegisterProductInfo(lua_State* L) { RegisterClass<ProductInfo>(L, {kFunctions}); }

}  // namespace luavelora
