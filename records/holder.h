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
  void Release() override {
    released_ = true;
    FreeIfDone();
  }

 private:
  friend class Pin;
  void FreeIfDone() {
    if (released_ && pins_ == 0) delete this;
  }

  unsigned pins_ = 0;
  bool released_ = false;
};

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
  explicit SharedRecordHolder(const std::shared_ptr<Record>& reference)
      : record(std::make_unique<std::shared_ptr<Record>>(reference)) {}

  std::unique_ptr<std::shared_ptr<Record>> record;
};

// A map or list that a setter replaces as a whole, never changes in place: whoever reads one holds on to it meanwhile.
template <class Container>
using Cache = std::shared_ptr<const Container>;

// A share request with its cached fields, in the order in which flush writes them.
struct ShareInfoHolder : SharedRecordHolder<tarn::velora::ShareInfo> {
  using SharedRecordHolder::SharedRecordHolder;

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
  std::unique_ptr<tarn::velora::ProductInfo> record;
  Cache<tarn::velora::StringMap> m_sdk_pids;
  Cache<tarn::velora::IntMap> m_channel_goodsTypes;
  Cache<tarn::velora::IntMap> m_jell_ratios;
};

// The holder of the userdata at `index`, whose class must have been tested; null once `__gc` has run.
template <class HolderType>
HolderType* HolderAt(lua_State* L, int index) {
  return static_cast<HolderType*>(static_cast<Holder*>(FromUserType(L, index)));
}

}  // namespace luavelora
