// Store items, orders and the list of checked orders.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"
#include "platform/operations.h"
#include "platform/sku_details_info.h"

namespace tarn::velora {

using namespace offline;

namespace {

// Values of an order's status.
constexpr std::int32_t kSdkCheckOk = 2;
constexpr std::int32_t kSdkCheckFailed = 3;
constexpr std::int32_t kServerCheckOk = 5;
constexpr std::int32_t kServerCheckFailed = 6;
constexpr std::int32_t kRestoreOk = 10;

constexpr const char* kCurrency = "XTS";  // the currency code reserved for testing

std::string OrderIdOf(OrderInfo& order) {
  const ControlPause pause;
  std::string orderId;
  order.get_orderId(orderId);
  return orderId;
}

std::string ProductIdOf(OrderInfo& order) {
  const ControlPause pause;
  std::string productId;
  order.get_productId(productId);
  return productId;
}

// Sets the order's status and, if it has none, its id. Adds an order that has passed to the checked orders.
void FinishCheck(const std::shared_ptr<OrderInfo>& order, std::int32_t status) {
  if (OrderIdOf(*order).empty()) {
    const std::int32_t number = ++LockedState()->lastOrderNumber;
    order->set_orderId("offline-order-" + std::to_string(number));
  }
  order->set_orderStatus(status);
  if (status != kSdkCheckOk && status != kRestoreOk) return;
  LockedState state;
  auto& checked = state->checkedOrders;
  if (std::find(checked.begin(), checked.end(), order) == checked.end()) checked.push_back(order);
}

void FinishConsume(const std::shared_ptr<OrderInfo>& order, std::int32_t status) {
  order->set_orderStatus(status);
  if (status == kServerCheckOk) std::erase(LockedState()->checkedOrders, order);
}

// Returns the store item of a product, made from the product registry. For an unregistered product it has only the id.
std::shared_ptr<SkuDetailsInfo> DescribeSku(const std::string& type, const std::string& productId) {
  const ProductInfo product = Find(&State::products, productId).value_or(ProductInfo());
  const double price = std::isfinite(product.productPrice) ? static_cast<double>(product.productPrice) : 0;
  char priceText[64];
  char microsText[64];
  std::snprintf(priceText, sizeof priceText, "%.2f", price);
  std::snprintf(microsText, sizeof microsText, "%.0f", std::round(price * 1e6));
  const ControlPause pause;
  auto sku = MakeSku({});
  sku->set_productId(productId);
  sku->set_type(type);
  sku->set_title(product.productName.empty() ? productId : product.productName);
  sku->set_price(priceText);
  sku->set_priceAmountMicros(microsText);
  sku->set_priceCurrencyCode(kCurrency);
  return sku;
}

}  // namespace

// The event has one item per id, or none if the canned result is false.
void zvQuerySkuDetails(const std::string& type, const StringList& productIds) {
  std::vector<std::shared_ptr<SkuDetailsInfo>> skus;
  if (Call(__func__, type, productIds).Flag(true)) {
    for (const std::string& productId : productIds) skus.push_back(DescribeSku(type, productId));
  }
  Reply({MakeEvent<events::QuerySkuDetailsFinished>(std::move(skus))});
}

void zvCheckOrder(const std::shared_ptr<OrderInfo>& order) {
  const auto status = Call(__func__, order).Code(kSdkCheckOk, kSdkCheckFailed);
  if (order == nullptr) return;
  const std::string productId = ProductIdOf(*order);
  if (!Find(&State::products, productId))
    Warn(__func__, "the product " + FormatArguments(productId) + " was never registered");
  Reply({MakeEvent<events::OrderCheckDone>(order)}, [order, status] { FinishCheck(order, status); });
}

void zvConsume(const std::shared_ptr<OrderInfo>& order) {
  const auto status = Call(__func__, order).Code(kServerCheckOk, kServerCheckFailed);
  if (order == nullptr) return;
  Reply({MakeEvent<events::OrderCosumeDone>(order)}, [order, status] { FinishConsume(order, status); });
}

void zvVerifyOrder() { Call(__func__); }
void zvPrePay() { Call(__func__); }
void zvQueryInventory() { Call(__func__); }

void zvGetCheckedOrders(std::vector<std::shared_ptr<OrderInfo>>& out) {
  if (Call(__func__).Flag(true)) out = Get(&State::checkedOrders);
}

void zvRemoveCheckedOrders(const std::string& orderId) {
  Call(__func__, orderId);
  auto removed = Get(&State::checkedOrders);  // a copy, since ids must be read without the lock
  std::erase_if(removed, [&](const auto& order) { return order == nullptr || OrderIdOf(*order) != orderId; });
  LockedState state;
  std::erase_if(state->checkedOrders,
                [&](const auto& order) { return std::find(removed.begin(), removed.end(), order) != removed.end(); });
}

bool getFFChannelByPid(const std::string& productId, std::string& out) {
  const Operation call = Call(__func__, productId);
  return call.Text(Find(&State::products, productId) ? std::optional("offline_ff_channel") : std::nullopt, out);
}

std::int32_t DRPF(const std::string& text) { return Call(__func__, text).Number(0); }

}  // namespace tarn::velora
