// The heap blocks that record userdata carry. A userdata owns its holder; two userdata never share one.
#pragma once

#include <memory>
#include <utility>

#include "binding/ownership.h"
#include "platform/field_families.h"
#include "platform/record_classes.h"

namespace luavelora {

static_assert(tarn::velora::kRecordClasses <= ModuleState::kMaxClasses);

// One owner of a record that the SDK may own too. kClass is the number of its class in ModuleState.
template <class Record>
struct SharedRecordHolder : Owned {
  static constexpr int kClass = tarn::velora::ClassNames<Record>::kClass;

  explicit SharedRecordHolder(std::shared_ptr<Record> reference) noexcept : record(std::move(reference)) {}

  std::shared_ptr<Record> record;
};

// A map or list that a setter replaces as a whole and never changes in place, so that whoever reads it can keep it.
template <class Container>
using Cache = std::shared_ptr<const Container>;

// A share request with its cached fields, which the constructor reads from the record.
struct ShareInfoHolder : SharedRecordHolder<tarn::velora::ShareInfo> {
  explicit ShareInfoHolder(std::shared_ptr<tarn::velora::ShareInfo> reference);

#define VELORA_CACHED_FIELD(name, family, label) Cache<tarn::velora::families::family> name;
#include "platform/share_info.def"
};

// A private copy of a product, and its cached fields.
struct ProductInfoHolder : Owned {
  static constexpr int kClass = tarn::velora::kProductInfoClass;

  explicit ProductInfoHolder(const tarn::velora::ProductInfo& source);

  tarn::velora::ProductInfo record;

#define VELORA_CACHED_FIELD(name, family, label) Cache<tarn::velora::families::family> name;
#include "platform/product_info.def"
};

// The holder of each class's userdata.
template <class Record>
struct HolderType {
  using Type = SharedRecordHolder<Record>;
};
template <>
struct HolderType<tarn::velora::ShareInfo> {
  using Type = ShareInfoHolder;
};
template <>
struct HolderType<tarn::velora::ProductInfo> {
  using Type = ProductInfoHolder;
};

template <class Record>
using HolderOf = typename HolderType<Record>::Type;

// The holder that a userdata's block points to, or null if the object was finalized. The block is that of a userdata
// whose class has been tested.
template <class Record>
HolderOf<Record>* HolderIn(const void* block) {
  return static_cast<HolderOf<Record>*>(*static_cast<Owned* const*>(block));
}

}  // namespace luavelora
