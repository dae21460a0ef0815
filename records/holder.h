// The heap blocks that record userdata carry. A userdata owns its holder; two userdata never share one.
#pragma once

#include <memory>
#include <utility>

#include "binding/closing.h"
#include "platform/binding_helpers.h"
#include "platform/product_info.h"
#include "platform/share_info.h"

namespace luavelora {

// What `__gc` needs of every holder. While a Pin on it lives, a `__gc` that a script calls by hand detaches the
// holder from its userdata at once but leaves freeing it to the last Pin.
class Holder : public Owned {
 public:
  // Frees the holder, now or when its last Pin goes.
  void Release() {
    released_ = true;
    FreeIfDone();
  }

 protected:
  // `destroy` deletes the holder as what it is.
  explicit Holder(void (*destroy)(Holder*))
      : Owned([](Owned& owned) { static_cast<Holder&>(owned).Release(); }), destroy_(destroy) {}
  ~Holder() = default;

 private:
  friend class Pin;
  void FreeIfDone() {
    if (released_ && pins_ == 0) destroy_(this);
  }

  void (*destroy_)(Holder*);
  unsigned pins_ = 0;
  bool released_ = false;
};

// Deletes a holder of type `HolderType` through its base.
template <class HolderType>
void DestroyAs(Holder* holder) {
  delete static_cast<HolderType*>(holder);
}

// Owns a holder that no userdata carries yet.
struct ReleaseHolder {
  void operator()(Holder* holder) const { holder->Release(); }
};
using FreshHolder = std::unique_ptr<Holder, ReleaseHolder>;

// Keeps a holder alive while the SDK works on its record: the SDK may call back into scripts, and those may call
// `__gc` on the very object in hand. Not to be alive across a Lua call that can raise.
class Pin {
 public:
  explicit Pin(Holder& holder) : holder_(holder) { ++holder_.pins_; }
  Pin(const Pin&) = delete;
  Pin& operator=(const Pin&) = delete;
  ~Pin() {
    --holder_.pins_;
    holder_.FreeIfDone();
  }

 private:
  Holder& holder_;
};

// One owner of a record that the SDK may own too.
template <class Record>
struct SharedRecordHolder : Holder {
  explicit SharedRecordHolder(const std::shared_ptr<Record>& reference,
                              void (*destroy)(Holder*) = DestroyAs<SharedRecordHolder>)
      : Holder(destroy), record(std::make_unique<std::shared_ptr<Record>>(reference)) {}

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
struct ProductInfoHolder : Holder {
  ProductInfoHolder() : Holder(DestroyAs<ProductInfoHolder>) {}
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
  return static_cast<HolderType*>(static_cast<Holder*>(FromUserType(L, index)));
}

}  // namespace luavelora
