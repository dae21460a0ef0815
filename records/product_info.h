// What the order class needs of products: holders made from records and records made from holders.
#pragma once

#include "records/holder.h"

namespace luavelora {

// A holder with its own copy of `source`, side maps included.
FreshHolder BindProduct(const tarn::velora::ProductInfo& source);

// The holder's record, after copying the side maps into it.
tarn::velora::ProductInfo& FlushProduct(ProductInfoHolder& holder);

}  // namespace luavelora
