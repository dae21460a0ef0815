// What the order class needs of products.
#pragma once

#include "records/holder.h"

namespace luavelora {

// Writes the cached fields into the holder's record and returns it.
tarn::velora::ProductInfo& FlushProduct(ProductInfoHolder& holder);

}  // namespace luavelora
