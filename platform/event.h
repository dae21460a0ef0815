// The events that the SDK queues, in the layout of its 64-bit build: the header (a virtual-table pointer, the type at
// byte 8), then one of 17 payloads from byte 16 on. Reserved fields and alignas make the layout the same for every
// compiler. The module only reads fields and calls no virtual operation. kPayload lists the fields of a layout in the
// order in which a callback receives them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "platform/import.h"
#include "platform/types.h"

namespace tarn::velora {

class AccountInfo;
class OrderInfo;
class PadRecord;
class SkuDetailsInfo;

class VELORA_SDK_TYPE Event {
 public:
  explicit Event(std::int32_t eventType) : type(eventType) {}
  virtual ~Event() = default;

  std::int32_t type;
  std::int32_t reserved = 0;
};

// The data of the download-finish events, which own it.
struct ByteBlock {
  const unsigned char* data;
  std::uint64_t size;
};

template <class Layout>
inline constexpr std::tuple<> kPayload{};

struct VELORA_SDK_TYPE PlainEvent : Event {
  using Event::Event;
};

struct VELORA_SDK_TYPE CodeEvent : Event {
  using Event::Event;
  std::int32_t code = 0;
};
template <>
inline constexpr std::tuple kPayload<CodeEvent>{&CodeEvent::code};

struct VELORA_SDK_TYPE CodeTextEvent : Event {
  using Event::Event;
  std::int32_t code = 0;
  std::string text;
};
template <>
inline constexpr std::tuple kPayload<CodeTextEvent>{&CodeTextEvent::code, &CodeTextEvent::text};

struct VELORA_SDK_TYPE FlagEvent : Event {
  using Event::Event;
  std::uint8_t flag = 0;  // any value but 0 is true
};
template <>
inline constexpr std::tuple kPayload<FlagEvent>{&FlagEvent::flag};

struct VELORA_SDK_TYPE TextEvent : Event {
  using Event::Event;
  std::string text;
};
template <>
inline constexpr std::tuple kPayload<TextEvent>{&TextEvent::text};

struct VELORA_SDK_TYPE TextPairEvent : Event {
  using Event::Event;
  std::string first;
  std::string second;
};
template <>
inline constexpr std::tuple kPayload<TextPairEvent>{&TextPairEvent::first, &TextPairEvent::second};

struct VELORA_SDK_TYPE TextListEvent : Event {
  using Event::Event;
  StringList texts;
};
template <>
inline constexpr std::tuple kPayload<TextListEvent>{&TextListEvent::texts};

struct VELORA_SDK_TYPE PadKeyEvent : Event {
  using Event::Event;
  std::int32_t keyCode = 0;
  std::shared_ptr<PadRecord> pad;
};
template <>
inline constexpr std::tuple kPayload<PadKeyEvent>{&PadKeyEvent::keyCode, &PadKeyEvent::pad};

struct VELORA_SDK_TYPE PadPressureEvent : Event {
  using Event::Event;
  std::int32_t keyCode = 0;
  alignas(8) float pressure = 0;
  std::shared_ptr<PadRecord> pad;
};
template <>
inline constexpr std::tuple kPayload<PadPressureEvent>{&PadPressureEvent::keyCode, &PadPressureEvent::pressure,
                                                       &PadPressureEvent::pad};

struct VELORA_SDK_TYPE PadStickEvent : Event {
  using Event::Event;
  float x = 0;
  alignas(8) float y = 0;
  std::shared_ptr<PadRecord> pad;
};
template <>
inline constexpr std::tuple kPayload<PadStickEvent>{&PadStickEvent::x, &PadStickEvent::y, &PadStickEvent::pad};

struct VELORA_SDK_TYPE PadStateEvent : Event {
  using Event::Event;
  std::shared_ptr<PadRecord> pad;
};
template <>
inline constexpr std::tuple kPayload<PadStateEvent>{&PadStateEvent::pad};

struct VELORA_SDK_TYPE OrderEvent : Event {
  using Event::Event;
  std::shared_ptr<OrderInfo> order;
};
template <>
inline constexpr std::tuple kPayload<OrderEvent>{&OrderEvent::order};

struct VELORA_SDK_TYPE AccountEvent : Event {
  using Event::Event;
  std::shared_ptr<AccountInfo> account;
};
template <>
inline constexpr std::tuple kPayload<AccountEvent>{&AccountEvent::account};

struct VELORA_SDK_TYPE AccountListEvent : Event {
  using Event::Event;
  std::vector<std::shared_ptr<AccountInfo>> accounts;
};
template <>
inline constexpr std::tuple kPayload<AccountListEvent>{&AccountListEvent::accounts};

struct VELORA_SDK_TYPE SkuListEvent : Event {
  using Event::Event;
  std::vector<std::shared_ptr<SkuDetailsInfo>> skus;
};
template <>
inline constexpr std::tuple kPayload<SkuListEvent>{&SkuListEvent::skus};

struct VELORA_SDK_TYPE BytesEvent : Event {
  using Event::Event;
  const ByteBlock* bytes = nullptr;
};
template <>
inline constexpr std::tuple kPayload<BytesEvent>{&BytesEvent::bytes};

struct VELORA_SDK_TYPE TextBytesEvent : Event {
  using Event::Event;
  std::string text;
  const ByteBlock* bytes = nullptr;
};
template <>
inline constexpr std::tuple kPayload<TextBytesEvent>{&TextBytesEvent::text, &TextBytesEvent::bytes};

#if defined(__GNUC__) || defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
static_assert(sizeof(void*) == 8, "the layout is that of 64-bit builds");
static_assert(sizeof(std::string) == 32 && sizeof(StringList) == 24 && sizeof(std::shared_ptr<OrderInfo>) == 16);
static_assert(offsetof(ByteBlock, data) == 0 && offsetof(ByteBlock, size) == 8 && sizeof(ByteBlock) == 16);
static_assert(offsetof(Event, type) == 8 && sizeof(Event) == 16);
static_assert(offsetof(CodeEvent, code) == 16);
static_assert(offsetof(CodeTextEvent, code) == 16 && offsetof(CodeTextEvent, text) == 24);
static_assert(offsetof(FlagEvent, flag) == 16);
static_assert(offsetof(TextEvent, text) == 16);
static_assert(offsetof(TextPairEvent, first) == 16 && offsetof(TextPairEvent, second) == 48);
static_assert(offsetof(TextListEvent, texts) == 16);
static_assert(offsetof(PadKeyEvent, keyCode) == 16 && offsetof(PadKeyEvent, pad) == 24);
static_assert(offsetof(PadPressureEvent, keyCode) == 16 && offsetof(PadPressureEvent, pressure) == 24 &&
              offsetof(PadPressureEvent, pad) == 32);
static_assert(offsetof(PadStickEvent, x) == 16 && offsetof(PadStickEvent, y) == 24 &&
              offsetof(PadStickEvent, pad) == 32);
static_assert(offsetof(PadStateEvent, pad) == 16);
static_assert(offsetof(OrderEvent, order) == 16);
static_assert(offsetof(AccountEvent, account) == 16);
static_assert(offsetof(AccountListEvent, accounts) == 16);
static_assert(offsetof(SkuListEvent, skus) == 16);
static_assert(offsetof(BytesEvent, bytes) == 16);
static_assert(offsetof(TextBytesEvent, text) == 16 && offsetof(TextBytesEvent, bytes) == 48);
static_assert(sizeof(PlainEvent) == 16 && sizeof(CodeEvent) == 24 && sizeof(FlagEvent) == 24 &&
              sizeof(PadPressureEvent) == 48 && sizeof(PadStickEvent) == 48 && sizeof(TextBytesEvent) == 56);
#if defined(__GNUC__) || defined(__clang__)
#pragma GCC diagnostic pop
#endif

// Moves all queued events, in queue order, to `events`, which must be empty. Called on the thread of Lua; other threads
// of the SDK may queue events at the same time.
VELORA_SDK_API void SwapEvents(std::vector<std::shared_ptr<Event>>& events);

}  // namespace tarn::velora
