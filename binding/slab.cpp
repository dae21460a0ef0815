#include "binding/slab.h"

namespace luavelora {

// Not in the header: inlined after every call of the SDK, it would slow those calls down.
void Slab::Free(Owned& object) {
  const unsigned slot = object.slot_;
  adopted_ &= ~Bit(slot);
  Destroy(object);
  FreeSlot(slot);
}

void Slab::Close() {
  Unlink();
  --pool_->slabs;
  pool_ = nullptr;
  isClosing_ = true;
  for (unsigned slot = 0; slot < kMaxSlots; ++slot)
    if ((adopted_ & Bit(slot)) != 0) ObjectIn(slot).Release();
  isClosing_ = false;
  if (taken_ == absent_) delete this;
}

void Slab::LinkTo(Slab*& list) {
  next_ = list;
  link_ = &list;
  if (next_ != nullptr) next_->link_ = &next_;
  list = this;
}

void Slab::Unlink() {
  *link_ = next_;
  if (next_ != nullptr) next_->link_ = link_;
}

void Slab::Settle() {
  const bool isEmpty = taken_ == absent_;
  if (pool_ == nullptr) {
    if (isEmpty && !isClosing_) delete this;
    return;
  }
  MoveTo(pool_->open);
  if (isEmpty && next_ != nullptr) {
    Unlink();
    --pool_->slabs;
    delete this;
  }
}

}  // namespace luavelora
