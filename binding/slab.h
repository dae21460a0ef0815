// Memory for the objects that userdata own. Objects of one type are in slabs: that takes less memory than a heap block
// and a list node per object. The slabs are in lists, so that all objects are found when the state closes.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

namespace luavelora {

class Slab;

// An object that a userdata owns. Use it on the thread of the userdata's Lua state only. While a Pin on it is alive it
// can be released (by a script that calls `__gc`, or by lua_close) but is not freed until the last Pin is gone.
class Owned {
 public:
  Owned() = default;
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  // Frees the object, now or when its last Pin is gone. Does not run Lua code.
  void Release() {
    uses_ |= kReleased;
    FreeIfDone();
  }

 protected:
  ~Owned() = default;

 private:
  friend class Pin;
  friend class Slab;
  void FreeIfDone();

  Slab* slab_ = nullptr;
  unsigned slot_ = 0;
  static constexpr unsigned kReleased = 1;
  static constexpr unsigned kPin = 2;
  unsigned uses_ = 0;  // kPin times the number of Pins, plus kReleased
};

// Keeps an object alive while the SDK works with it: the SDK may call back into scripts, which may call `__gc` on the
// same object. Must not be alive across a Lua call that can raise.
class Pin {
 public:
  explicit Pin(Owned& owned) : owned_(owned) { owned_.uses_ += Owned::kPin; }
  Pin(const Pin&) = delete;
  Pin& operator=(const Pin&) = delete;
  ~Pin() {
    owned_.uses_ -= Owned::kPin;
    owned_.FreeIfDone();
  }

 private:
  Owned& owned_;
};

// The slabs of one type of object in one Lua state.
struct Pool {
  Slab* open = nullptr;   // the first of those with a free slot
  Slab* full = nullptr;   // the first of those without
  std::size_t slabs = 0;  // the number of both
};

// One heap block with slots for objects of one type. It is freed with its last object, unless it is the only one of its
// pool with a free slot.
class Slab {
 public:
  static constexpr std::size_t kMaxSlots = 64;

  Slab(Pool& pool, std::size_t slots) : pool_(&pool), absent_(slots == kMaxSlots ? 0 : kAll << slots) {
    LinkTo(pool.open);
    ++pool.slabs;
  }
  Slab(const Slab&) = delete;
  Slab& operator=(const Slab&) = delete;

  // Takes a free slot and returns its number. The slab must have one.
  unsigned TakeSlot() {
    const auto slot = static_cast<unsigned>(std::countr_one(taken_));
    taken_ |= Bit(slot);
    if (taken_ == kAll) [[unlikely]]
      MoveTo(pool_->full);
    return slot;
  }

  // Lets `object`, which is in the taken slot, be released when the state closes.
  void Adopt(Owned& object, unsigned slot) {
    object.slab_ = this;
    object.slot_ = slot;
    adopted_ |= Bit(slot);
  }

  // Frees a slot without an object. May delete the slab.
  void FreeSlot(unsigned slot) {
    const bool wasFull = taken_ == kAll;
    taken_ &= ~Bit(slot);
    if (wasFull || taken_ == absent_) [[unlikely]]
      Settle();
  }

  // Destroys an adopted object and frees its slot. May delete the slab.
  void Free(Owned& object);

  // Takes the slab out of its pool and releases its objects. Deletes the slab, or, if Pins or running constructors
  // still use slots, lets the last of these delete it.
  void Close();

 protected:
  virtual ~Slab() = default;

 private:
  virtual Owned& ObjectIn(unsigned slot) = 0;
  virtual void Destroy(Owned& object) = 0;

  static constexpr std::uint64_t kAll = ~std::uint64_t{0};
  static constexpr std::uint64_t Bit(unsigned slot) { return std::uint64_t{1} << slot; }

  void LinkTo(Slab*& list);
  void Unlink();
  void MoveTo(Slab*& list) {
    Unlink();
    LinkTo(list);
  }
  // Moves the slab to the open ones, or deletes it if it is empty and no longer needed. Called when a full slab gets a
  // free slot and when a slab becomes empty.
  void Settle();

  Slab* next_ = nullptr;
  Slab** link_ = nullptr;  // the pointer that points to this slab
  Pool* pool_;             // null once the state is closed
  // A bit per slot.
  const std::uint64_t absent_;  // those beyond the slab's size
  std::uint64_t taken_ = absent_;
  std::uint64_t adopted_ = 0;  // those whose object Close releases
  bool isClosing_ = false;
};

// A slot that is freed again unless an object is adopted, so also if the object's constructor throws.
class ReservedSlot {
 public:
  explicit ReservedSlot(Slab& slab) : slab_(&slab), number_(slab.TakeSlot()) {}
  ReservedSlot(const ReservedSlot&) = delete;
  ReservedSlot& operator=(const ReservedSlot&) = delete;
  ~ReservedSlot() {
    if (slab_ != nullptr) slab_->FreeSlot(number_);
  }

  unsigned number() const { return number_; }
  void Adopt(Owned& object) { std::exchange(slab_, nullptr)->Adopt(object, number_); }

 private:
  Slab* slab_;
  const unsigned number_;
};

template <class Object>
class SlabOf final : public Slab {
 public:
  static constexpr std::size_t kSlots = std::clamp<std::size_t>(2048 / sizeof(Object), 1, kMaxSlots);

  explicit SlabOf(Pool& pool) : Slab(pool, kSlots) {}

  void* Memory(unsigned slot) { return memory_ + slot * sizeof(Object); }

 private:
  Owned& ObjectIn(unsigned slot) override { return *std::launder(static_cast<Object*>(Memory(slot))); }
  void Destroy(Owned& object) override { static_cast<Object&>(object).~Object(); }

  alignas(Object) std::byte memory_[kSlots * sizeof(Object)];
};

inline void Owned::FreeIfDone() {
  if (uses_ == kReleased) [[unlikely]]
    slab_->Free(*this);
}

}  // namespace luavelora
