// The part of the product class that the order class uses.
#pragma once

#include "records/holder.h"

namespace luavelora {

// Writes the cached fields into the holder's record and returns it.
tarn::velora::ProductInfo& FlushProduct(ProductInfoHolder& holder);

}  // namespace luavelora
