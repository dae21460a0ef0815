// The SDK's payment order. The operations are in virtual-table order; the module never calls the first. A record is
// destroyed by the deleter of its shared reference. Any thread that holds a reference may call its operations.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/import.h"
#include "platform/product_info.h"
#include "platform/types.h"

namespace tarn::velora {

class VELORA_SDK_TYPE OrderInfo {
 public:
  // Returns a reference to a new record, or an empty one if the SDK does not support the class.
  static VELORA_SDK_API std::shared_ptr<OrderInfo> New(const std::string& productId);

  // The product registry. getProductList fills `out` with copies of the registered products, by id.
  static VELORA_SDK_API void getProductList(std::unordered_map<std::string, ProductInfo>& out);
  static VELORA_SDK_API bool hasProduct(const std::string& productId);
  static VELORA_SDK_API bool hasProduct(const std::shared_ptr<OrderInfo>& order);
  static VELORA_SDK_API void regProduct(const std::string& productId);
  static VELORA_SDK_API void regProduct(const std::string& productId, const std::string& name, float price,
                                        std::int32_t exchangeRatio);
  static VELORA_SDK_API void regProduct(const std::string& productId, const std::string& name, float price,
                                        std::int32_t exchangeRatio, const StringMap& sdkPids);
  static VELORA_SDK_API std::int32_t getProductType(const std::string& productId);
  static VELORA_SDK_API void setProductType(const std::string& productId, std::int32_t type);

  // Fills `out` with the order as JSON and returns true, or returns false if it has no such form.
  static VELORA_SDK_API bool obj2Json(const std::shared_ptr<OrderInfo>& order, std::string& out);

  virtual void reserved() {}
  virtual bool get_aid(std::string& out) = 0;
  virtual std::int32_t get_count() = 0;
  virtual bool get_curOrderChannel(std::string& out) = 0;
  virtual bool get_externalChannelId(std::string& out) = 0;
  virtual bool get_ffChannel(std::string& out) = 0;
  virtual std::int32_t get_jfCode() = 0;
  virtual bool get_jfExtInfo(std::string& out) = 0;
  virtual bool get_extendJson(std::string& out) = 0;
  virtual std::int32_t get_jfAasFfCode() = 0;
  virtual bool get_jfAasFfRule(std::string& out) = 0;
  virtual bool get_jfMessage(std::string& out) = 0;
  virtual bool get_veloraJfExtCid(std::string& out) = 0;
  virtual bool get_jfGas3Url(std::string& out) = 0;
  virtual std::int32_t get_jfSubCode() = 0;
  virtual bool get_orderChannel(std::string& out) = 0;
  virtual bool get_orderCurrency(std::string& out) = 0;
  virtual bool get_orderDesc(std::string& out) = 0;
  virtual bool get_orderErrReason(std::string& out) = 0;
  virtual bool get_orderErrCode(std::string& out) = 0;
  virtual bool get_orderEtc(std::string& out) = 0;
  virtual bool get_orderId(std::string& out) = 0;
  virtual std::int32_t get_orderStatus() = 0;
  virtual float get_productCurrentPrice() = 0;
  virtual std::int32_t get_productExchangeRatio() = 0;
  virtual bool get_productId(std::string& out) = 0;
  virtual bool get_productName(std::string& out) = 0;
  virtual float get_productPrice() = 0;
  virtual bool get_qrCodeParams(std::string& out) = 0;
  virtual bool get_sdkOrderId(std::string& out) = 0;
  virtual void get_sdkPids(StringMap& out) = 0;
  virtual bool get_serverId(std::string& out) = 0;
  virtual bool get_signature(std::string& out) = 0;
  virtual bool get_uid(std::string& out) = 0;
  virtual bool get_userData(std::string& out) = 0;
  virtual bool get_userName(std::string& out) = 0;
  virtual void get_arrPriceLocaleId(StringList& out) = 0;
  virtual bool get_receipt(std::string& out) = 0;
  virtual bool get_qrCodeOrder() = 0;
  virtual void get_channelGoodsTypes(IntMap& out) = 0;
  virtual void get_jellRatios(IntMap& out) = 0;
  virtual bool get_jellyExtra(std::string& out) = 0;
  virtual bool get_cpOrderId(std::string& out) = 0;
  virtual bool get_jfExtraJson(std::string& out) = 0;
  virtual std::int64_t get_timeStamp() = 0;
  virtual std::int32_t get_orderType() = 0;
  virtual bool produceCartInfo(std::string& out) = 0;
  virtual void set_aid(const std::string& value) = 0;
  virtual void set_count(std::int32_t value) = 0;
  virtual void set_externalChannelId(const std::string& value) = 0;
  virtual void set_qrCodeOrder(bool value) = 0;
  virtual void set_jfCode(std::int32_t value) = 0;
  virtual void set_jfExtInfo(const std::string& value) = 0;
  virtual void set_extendJson(const std::string& value) = 0;
  virtual void set_jfAasFfCode(std::int32_t value) = 0;
  virtual void set_jfAasFfRule(const std::string& value) = 0;
  virtual void set_jfMessage(const std::string& value) = 0;
  virtual void set_veloraJfExtCid(const std::string& value) = 0;
  virtual void set_jfGas3Url(const std::string& value) = 0;
  virtual void set_jfSubCode(std::int32_t value) = 0;
  virtual void set_orderChannel(const std::string& value) = 0;
  virtual void set_orderCurrency(const std::string& value) = 0;
  virtual void set_orderDesc(const std::string& value) = 0;
  virtual void set_orderErrReason(const std::string& value) = 0;
  virtual void set_orderEtc(const std::string& value) = 0;
  virtual void set_orderId(const std::string& value) = 0;
  virtual void set_orderStatus(std::int32_t value) = 0;
  virtual void set_productCurrentPrice(float value) = 0;
  virtual void set_productId(const std::string& value) = 0;
  virtual void set_qrCodeParams(const std::string& value) = 0;
  virtual void set_sdkOrderId(const std::string& value) = 0;
  virtual void set_serverId(const std::string& value) = 0;
  virtual void set_signature(const std::string& value) = 0;
  virtual void set_uid(const std::string& value) = 0;
  virtual void set_userData(const std::string& value) = 0;
  virtual void set_userName(const std::string& value) = 0;
  virtual void set_arrPriceLocaleId(const StringList& value) = 0;
  virtual void set_cpOrderId(const std::string& value) = 0;
  virtual void set_jfExtraJson(const std::string& value) = 0;
  virtual void set_orderType(std::int32_t value) = 0;
  virtual bool toString(std::string& out) = 0;

 protected:
  ~OrderInfo() = default;
};

}  // namespace tarn::velora
