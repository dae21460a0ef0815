// The string form of products.
#include "platform/product_info.h"

#include "offline/calls.h"
#include "offline/json.h"

namespace tarn::velora {

// A product is a plain value that was made with nothing; its id tells call lines which one it is.
bool toString(const ProductInfo& product, std::string& out) {
  const std::string name = "ProductInfo(" + (product.productId.empty() ? "" : offline::Joined(product.productId)) + ")";
  const offline::Operation call = offline::Call("ProductInfo.toString", offline::Verbatim{name});
  offline::JsonObject object;
#define VELORA_FIELD(name, family) object.AddUnlessDefault(#name, product.name);
#include "platform/product_info.def"
  return call.Text(name + " " + object.Text(), out);
}

}  // namespace tarn::velora
