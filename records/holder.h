// The heap blocks behind record userdata. Each userdata owns a holder of its own.
#pragma once

#include <memory>
#include <utility>

#include "binding/ownership.h"
#include "platform/field_families.h"
#include "platform/record_classes.h"

namespace luavelora {

static_assert(tarn::velora::kRecordClasses <= ModuleState::kMaxClasses);

// Shares the ownership of a record with the SDK. kClass is the number of the class in ModuleState.
template <class Record>
struct SharedRecordHolder : Owned {
  static constexpr int kClass = tarn::velora::ClassNames<Record>::kClass;

  explicit SharedRecordHolder(std::shared_ptr<Record> reference) noexcept : record(std::move(reference)) {}

  std::shared_ptr<Record> record;
};

// A cached map or list. Setters replace it as a whole, so that a reader that copies the pointer has a stable value.
template <class Container>
using Cache = std::shared_ptr<const Container>;

// A share request and its cached fields, which the constructor reads from the record.
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

// Returns the holder that a userdata's block points to, or null if the object was finalized. The userdata must be one
// of the class.
template <class Record>
HolderOf<Record>* HolderIn(const void* block) {
  return static_cast<HolderOf<Record>*>(*static_cast<Owned* const*>(block));
}

}  // namespace luavelora
