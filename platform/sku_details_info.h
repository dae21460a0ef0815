// The SDK's store item. The operations are in virtual-table order; the module never calls the first. A record is
// destroyed by the deleter of its shared reference. Any thread that holds a reference may call its operations.
#pragma once

#include <memory>
#include <string>

#include "platform/import.h"

namespace tarn::velora {

class VELORA_SDK_TYPE SkuDetailsInfo {
 public:
  // Returns a reference to a new record, or an empty one if the SDK does not support the class.
  static VELORA_SDK_API std::shared_ptr<SkuDetailsInfo> New(const std::string& first, const std::string& second,
                                                            const std::string& third, const std::string& fourth,
                                                            const std::string& fifth, const std::string& sixth,
                                                            const std::string& seventh);

  virtual void reserved() {}
  virtual bool get_description(std::string& out) = 0;
  virtual bool get_price(std::string& out) = 0;
  virtual bool get_priceAmountMicros(std::string& out) = 0;
  virtual bool get_priceCurrencyCode(std::string& out) = 0;
  virtual bool get_productId(std::string& out) = 0;
  virtual bool get_title(std::string& out) = 0;
  virtual bool get_type(std::string& out) = 0;
  virtual void set_description(const std::string& value) = 0;
  virtual void set_price(const std::string& value) = 0;
  virtual void set_priceAmountMicros(const std::string& value) = 0;
  virtual void set_priceCurrencyCode(const std::string& value) = 0;
  virtual void set_productId(const std::string& value) = 0;
  virtual void set_title(const std::string& value) = 0;
  virtual void set_type(const std::string& value) = 0;
  virtual bool toString(std::string& out) = 0;

 protected:
  ~SkuDetailsInfo() = default;
};

}  // namespace tarn::velora
