// `OrderInfo`: a payment order. The class table also has the functions of the SDK's product registry.
#include "binding/set_constant.h"
#include "records/classes.h"
#include "records/fields.h"
#include "records/product_info.h"

namespace luavelora {
namespace {

using tarn::velora::OrderInfo;
using tarn::velora::ProductInfo;

Outcome New(lua_State* L) {
  const char* productId = TextArgument(L, 1);
  if (productId == nullptr) return Outcome::Error("velora.OrderInfo must be init with productId of type str!");
  return NewObject<OrderInfo>(L, [productId] { return OrderInfo::New(productId); });
}

namespace functions {

Outcome getProductList(lua_State* L) {
  std::unordered_map<std::string, ProductInfo> products;
  OrderInfo::getProductList(products);
  ModuleState* state = ModuleStateOf(L);
  if (products.empty() || state == nullptr) return Outcome::Results(0);
  return PushProtected(L, [&products, state](lua_State* inner) {
    lua_createtable(inner, 0, TableSize(products.size()));
    for (const auto& [productId, product] : products) {
      lua_pushstring(inner, productId.c_str());
      if (Owned** block = PushWithoutHolder<ProductInfo>(inner, *state))
        *block = state->Create<ProductInfoHolder>(product);
      lua_rawset(inner, -3);
    }
  });
}

Outcome hasProduct(lua_State* L) {
  bool known = false;
  if (const char* productId = TextArgument(L, 1)) {
    known = OrderInfo::hasProduct(productId);
  } else if (auto* holder = Self<OrderInfo>(L)) {
    const Pin pin(*holder);
    known = OrderInfo::hasProduct(holder->record);
  }
  lua_pushboolean(L, known);
  return Outcome::Results(1);
}

Outcome regProduct(lua_State* L) {
  if (const char* productId = TextArgument(L, 1)) {
    OrderInfo::regProduct(productId);
  } else if (auto* holder = Self<ProductInfo>(L)) {
    const ProductInfo product = FlushProduct(*holder);
    if (product.sdkPids.empty())
      OrderInfo::regProduct(product.productId, product.productName, product.productPrice, product.exchangeRatio);
    else
      OrderInfo::regProduct(product.productId, product.productName, product.productPrice, product.exchangeRatio,
                            product.sdkPids);
  }
  return Outcome::Results(0);
}

Outcome getProductType(lua_State* L) {
  const char* productId = TextArgument(L, 1);
  if (productId == nullptr) return Refusal();
  lua_pushinteger(L, OrderInfo::getProductType(productId));
  return Outcome::Results(1);
}

Outcome setProductType(lua_State* L) {
  if (!lua_isstring(L, 1) || !lua_isinteger(L, 2)) return Refusal();
  const std::int32_t type = Low32(lua_tointeger(L, 2));
  OrderInfo::setProductType(TextArgument(L, 1), type);
  return Outcome::Results(0);
}

Outcome obj2Json(lua_State* L) {
  auto* holder = Self<OrderInfo>(L);
  if (holder == nullptr) return Refusal();
  return TextResult(L, [holder](std::string& out) {
    const Pin pin(*holder);
    return OrderInfo::obj2Json(holder->record, out) && *out.c_str() != '\0';
  });
}

constexpr auto produceCartInfo = family::String::Get<&OrderInfo::produceCartInfo>;

}  // namespace functions

const luaL_Reg kFunctions[] = {
#define VELORA_FIELD(name, Family) VELORA_GETTER(OrderInfo, name, Family), VELORA_SETTER(OrderInfo, name, Family),
#define VELORA_FIELD_READ_ONLY(name, Family) VELORA_GETTER(OrderInfo, name, Family),
#define VELORA_CLASS_FUNCTION(name) Row<functions::name>(#name),
#include "platform/order_info.def"
    Row<Collect<OrderInfo>>("__gc"),
    Row<RecordToString<OrderInfo>>("__tostring"),
    {nullptr, nullptr},
};

struct NamedInteger {
  const char* name;
  lua_Integer value;
};

const NamedInteger kConstants[] = {
    {"ORDER_S_PREPARING", 0},
    {"ORDER_S_SDK_CHECKING", 1},
    {"ORDER_S_SDK_CHECK_OK", 2},
    {"ORDER_S_SDK_CHECK_ERR", 3},
    {"ORDER_S_GS_CHECKING", 4},
    {"ORDER_S_GS_CHECK_OK", 5},
    {"ORDER_S_GS_CHECK_ERR", 6},
    {"ORDER_S_WRONG_PRODUCT_ID", 7},
    {"ORDER_S_WRONG_ORDER_ID", 8},
    {"ORDER_ZV_OS_SDK_INVALID_CURRENCY", 9},
    {"ORDER_S_SDK_CHECK_RESTORE_OK", 10},
    {"ORDER_S_SDK_CHECK_CANCEL", 11},
    {"ORDER_S_SDK_CHANNEL_IN_BLACKLIST", 430},
    {"PRODUCT_TYPE_CONSUMABLE", 0},
    {"PRODUCT_TYPE_NONCONSUMABLE", 1},
    {"PRODUCT_TYPE_AUTORENEWABLE", 2},
    {"PRODUCT_TYPE_NONRENEWABLE", 3},
    {"PRODUCT_TYPE_PROMOCODE", 4},
};

}  // namespace

void RegisterOrderInfo(lua_State* L) {
  RegisterClass<OrderInfo>(L, kFunctions, Entry<New>);
  for (const NamedInteger& constant : kConstants) SetConstant(L, constant.name, constant.value);
}

}  // namespace luavelora
