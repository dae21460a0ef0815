// The string form of products.
#include "platform/product_info.h"

#include "offline/calls.h"
#include "offline/json.h"

namespace tarn::velora {

// Call lines identify a product by its id, since it is a plain value without constructor arguments.
bool toString(const ProductInfo& product, std::string& out) {
  const std::string name =
      "ProductInfo(" + (product.productId.empty() ? "" : offline::FormatArguments(product.productId)) + ")";
  const offline::Operation call = offline::Call("ProductInfo.toString", offline::Verbatim{name});
  offline::JsonObject object;
#define VELORA_FIELD(name, family) object.AddUnlessDefault(#name, product.name);
#include "platform/product_info.def"
  return call.Text(name + " " + object.Text(), out);
}

}  // namespace tarn::velora
