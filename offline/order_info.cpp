// The runtime's payment orders and the product registry.
#include "platform/order_info.h"

#include "offline/record.h"
#include "offline/state.h"

namespace tarn::velora {
namespace offline {
namespace {

class Order final : public OrderInfo, public Record {
 public:
  explicit Order(std::string arguments) : Record("OrderInfo", std::move(arguments)) {}

#define RECORD_CLASS "OrderInfo"
#define RECORD_FIELDS "platform/order_info.def"
#include "offline/record_fields.inc"

  bool produceCartInfo(std::string& out) override {
    return Call("OrderInfo.produceCartInfo", static_cast<const Record&>(*this)).Text(CartJson(), out);
  }

  bool toString(std::string& out) override { return TextForm("OrderInfo.toString", *this, out); }

  // Copies the product's fields. Takes no lock, so the order must not be shared yet.
  void CopyFields(const ProductInfo& product) {
    productName_ = product.productName;
    productPrice_ = product.productPrice;
    productExchangeRatio_ = product.exchangeRatio;
    sdkPids_ = product.sdkPids;
  }

 private:
  std::string CartJson() {
    const ControlPause pause;
    std::string productId;
    std::string productName;
    get_productId(productId);
    get_productName(productName);
    JsonObject cart;
    cart.Add("productId", productId);
    cart.Add("productName", productName);
    cart.Add("productPrice", get_productPrice());
    cart.Add("count", get_count());
    return cart.Text();
  }
};

}  // namespace

std::shared_ptr<OrderInfo> MakeOrder(const Fields& fields) { return MakeFilled<Order>(fields); }

void SetProduct(ProductInfo product) {
  std::string productId = product.productId;
  LockedState()->products.insert_or_assign(std::move(productId), std::move(product));
}

}  // namespace offline

std::shared_ptr<OrderInfo> OrderInfo::New(const std::string& productId) {
  offline::Call("OrderInfo.New", productId);
  const auto order = offline::CreateRecord<offline::Order>("OrderInfo.New", offline::FormatArguments(productId));
  if (order == nullptr) return nullptr;
  order->productId_ = productId;
  if (const auto product = offline::Find(&offline::State::products, productId)) order->CopyFields(*product);
  return order;
}

void OrderInfo::getProductList(std::unordered_map<std::string, ProductInfo>& out) {
  if (offline::Call("OrderInfo.getProductList").Flag(true)) out = offline::Get(&offline::State::products);
}

bool OrderInfo::hasProduct(const std::string& productId) {
  const offline::Operation call = offline::Call("OrderInfo.hasProduct", productId);
  return call.Flag(offline::Find(&offline::State::products, productId).has_value());
}

bool OrderInfo::hasProduct(const std::shared_ptr<OrderInfo>& order) {
  const offline::Operation call = offline::Call("OrderInfo.hasProduct", order);
  bool registered = false;
  if (order != nullptr) {
    const offline::ControlPause pause;
    std::string productId;
    order->get_productId(productId);
    registered = offline::LockedState()->products.contains(productId);
  }
  return call.Flag(registered);
}

// Registers a product with only an id. Does nothing if the id is registered already.
void OrderInfo::regProduct(const std::string& productId) {
  offline::Call("OrderInfo.regProduct", productId);
  ProductInfo product;
  product.productId = productId;
  offline::LockedState()->products.try_emplace(productId, std::move(product));
}

void OrderInfo::regProduct(const std::string& productId, const std::string& name, float price,
                           std::int32_t exchangeRatio) {
  offline::Call("OrderInfo.regProduct", productId, name, price, exchangeRatio);
  offline::SetProduct({productId, name, price, exchangeRatio, {}, {}, {}, {}, {}});
}

void OrderInfo::regProduct(const std::string& productId, const std::string& name, float price,
                           std::int32_t exchangeRatio, const StringMap& sdkPids) {
  offline::Call("OrderInfo.regProduct", productId, name, price, exchangeRatio, sdkPids);
  offline::SetProduct({productId, name, price, exchangeRatio, sdkPids, {}, {}, {}, {}});
}

std::int32_t OrderInfo::getProductType(const std::string& productId) {
  const offline::Operation call = offline::Call("OrderInfo.getProductType", productId);
  return call.Number(offline::Find(&offline::State::productTypes, productId).value_or(0));  // 0: consumable
}

void OrderInfo::setProductType(const std::string& productId, std::int32_t type) {
  offline::Call("OrderInfo.setProductType", productId, type);
  offline::LockedState()->productTypes.insert_or_assign(productId, type);
}

bool OrderInfo::obj2Json(const std::shared_ptr<OrderInfo>& order, std::string& out) {
  const offline::Operation call = offline::Call("OrderInfo.obj2Json", order);
  const auto* made = dynamic_cast<const offline::Order*>(order.get());
  return call.Text(made == nullptr ? std::nullopt : std::optional(made->Json(*made)), out);
}

}  // namespace tarn::velora
