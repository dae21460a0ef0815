// The heap blocks that record userdata carry. A userdata owns its holder; two userdata never share one.
#pragma once

#include <memory>

#include "binding/closing.h"
#include "platform/binding_helpers.h"
#include "platform/product_info.h"
#include "platform/share_info.h"

namespace luavelora {

// Deletes a holder of type `HolderType` through its base.
template <class HolderType>
void DestroyAs(Owned& holder) {
  delete static_cast<HolderType*>(&holder);
}

// Owns a holder that no userdata carries yet.
struct ReleaseHolder {
  void operator()(Owned* holder) const { holder->Release(); }
};
using FreshHolder = std::unique_ptr<Owned, ReleaseHolder>;

// One owner of a record that the SDK may own too.
template <class Record>
struct SharedRecordHolder : Owned {
  explicit SharedRecordHolder(const std::shared_ptr<Record>& reference,
                              void (*destroy)(Owned&) = DestroyAs<SharedRecordHolder>)
      : Owned(destroy), record(std::make_unique<std::shared_ptr<Record>>(reference)) {}

  std::unique_ptr<std::shared_ptr<Record>> record;
};

// A map or list that a setter replaces as a whole, never changes in place: whoever reads one holds on to it meanwhile.
template <class Container>
using Cache = std::shared_ptr<const Container>;

// A share request with its cached fields, in the order in which flush writes them.
struct ShareInfoHolder : SharedRecordHolder<tarn::velora::ShareInfo> {
  explicit ShareInfoHolder(const std::shared_ptr<tarn::velora::ShareInfo>& reference)
      : SharedRecordHolder(reference, DestroyAs<ShareInfoHolder>) {}
  ~ShareInfoHolder() { record.reset(); }  // the record goes first

  Cache<tarn::velora::StringMap> aLinkParams;
  Cache<tarn::velora::StringMap> altTextMsg;
  Cache<tarn::velora::StringMap> iLinkParams;
  Cache<tarn::velora::StringMap> linkParams;
  Cache<tarn::velora::StringMap> linkTextMsg;
  Cache<tarn::velora::StringMap> subTextMsg;
  Cache<tarn::velora::StringMap> textMsg;
  Cache<tarn::velora::StringList> toUserList;
};

// A private copy of a product, and the side maps of its three map fields.
struct ProductInfoHolder : Owned {
  ProductInfoHolder() : Owned(DestroyAs<ProductInfoHolder>) {}
  ~ProductInfoHolder() {  // the record goes first, then the maps in their order
    record.reset();
    m_sdk_pids.reset();
    m_channel_goodsTypes.reset();
  }

  std::unique_ptr<tarn::velora::ProductInfo> record;
  Cache<tarn::velora::StringMap> m_sdk_pids;
  Cache<tarn::velora::IntMap> m_channel_goodsTypes;
  Cache<tarn::velora::IntMap> m_jell_ratios;
};

// The holder of the userdata at `index`, whose class must just have been tested; null once `__gc` has run.
template <class HolderType>
HolderType* HolderAt(lua_State* L, int index) {
  return static_cast<HolderType*>(static_cast<Owned*>(FromUserType(L, index)));
}

}  // namespace luavelora
