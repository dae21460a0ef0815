// `ProductInfo`: a store product. The holder has a copy of the SDK's; FlushProduct writes the cached fields into it.
#include "records/product_info.h"

#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {

using tarn::velora::ProductInfo;

ProductInfoHolder::ProductInfoHolder(const ProductInfo& source) : record(source) {
#define VELORA_CACHED_FIELD(name, Family, label) name = std::make_shared<const decltype(source.name)>(source.name);
#include "platform/product_info.def"
}

ProductInfo& FlushProduct(ProductInfoHolder& holder) {
#define VELORA_CACHED_FIELD(name, Family, label) holder.record.name = *holder.name;
#include "platform/product_info.def"
  return holder.record;
}

namespace {

Outcome New(lua_State* L) {
  return NewObject<ProductInfo>(L, [] { return ProductInfo(); });
}

Outcome ProductToString(lua_State* L) {
  return ToString<ProductInfo>(L, [](ProductInfoHolder& holder, std::string& out) {
    const ProductInfo product = FlushProduct(holder);  // a copy, since the SDK may call scripts that set fields
    return tarn::velora::toString(product, out);
  });
}

const luaL_Reg kFunctions[] = {
    Row<Collect<ProductInfo>>("__gc"),
    Row<ProductToString>("__tostring"),
#define VELORA_FIELD(name, Family)                            \
  Row<family::Family::Get<&ProductInfo::name>>("get_" #name), \
      Row<family::Family::Set<&ProductInfo::name>>("set_" #name),
#define VELORA_CACHED_FIELD(name, Family, label) VELORA_CACHE_ACCESSORS(ProductInfo, name, label),
#include "platform/product_info.def"
    {nullptr, nullptr},
};

}  // namespace

void RegisterProductInfo(lua_State* L) { RegisterClass<ProductInfo>(L, kFunctions, Entry<New>); }

}  // namespace luavelora
