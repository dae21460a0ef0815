// The SDK's store product, a plain value. Its layout must be that of the SDK, which takes and returns it by value and
// by reference.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/import.h"
#include "platform/types.h"

namespace tarn::velora {

struct ProductInfo {
  std::string productId;
  std::string productName;
  float productPrice = 0;
  std::int32_t exchangeRatio = 1;
  StringMap sdkPids;
  IntMap channelGoodsTypes;
  IntMap jellRatios;
  std::string jellyExtra;
  std::string ffChannel;
};

static_assert(offsetof(ProductInfo, productName) == 32 && offsetof(ProductInfo, productPrice) == 64 &&
              offsetof(ProductInfo, exchangeRatio) == 68 && offsetof(ProductInfo, sdkPids) == 72 &&
              offsetof(ProductInfo, channelGoodsTypes) == 72 + sizeof(StringMap) &&
              offsetof(ProductInfo, jellRatios) == 72 + 2 * sizeof(StringMap) &&
              offsetof(ProductInfo, jellyExtra) == 72 + 3 * sizeof(StringMap) &&
              offsetof(ProductInfo, ffChannel) == 104 + 3 * sizeof(StringMap) &&
              sizeof(ProductInfo) == 136 + 3 * sizeof(StringMap));
#if defined(_MSC_VER)
static_assert(sizeof(StringMap) == 64 && sizeof(IntMap) == 64);
#endif

// Fills `out` with a string form of `product` and returns true, or returns false if there is none.
VELORA_SDK_API bool toString(const ProductInfo& product, std::string& out);

}  // namespace tarn::velora
