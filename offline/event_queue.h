// The events that wait for SwapEvents, and the runtime's own thread, from which operations are answered.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/event.h"
#include "platform/types.h"

namespace tarn::velora::offline {

// One type per event: its number and the layout of its payload.
namespace events {
#define VELORA_EVENT(number, name, layout)        \
  struct name {                                   \
    static constexpr std::int32_t kType = number; \
    using Layout = layout;                        \
  };
#include "platform/events.def"
#undef VELORA_EVENT
}  // namespace events

inline void SetPayload(PlainEvent&) {}
inline void SetPayload(CodeEvent& event, std::int32_t code) { event.code = code; }
inline void SetPayload(FlagEvent& event, bool flag) { event.flag = flag ? 1 : 0; }
inline void SetPayload(TextEvent& event, std::string text) { event.text = std::move(text); }
inline void SetPayload(TextListEvent& event, StringList texts) { event.texts = std::move(texts); }
inline void SetPayload(OrderEvent& event, std::shared_ptr<OrderInfo> order) { event.order = std::move(order); }
inline void SetPayload(AccountEvent& event, std::shared_ptr<AccountInfo> account) {
  event.account = std::move(account);
}
inline void SetPayload(AccountListEvent& event, std::vector<std::shared_ptr<AccountInfo>> accounts) {
  event.accounts = std::move(accounts);
}
inline void SetPayload(SkuListEvent& event, std::vector<std::shared_ptr<SkuDetailsInfo>> skus) {
  event.skus = std::move(skus);
}
inline void SetPayload(CodeTextEvent& event, std::int32_t code, std::string text) {
  event.code = code;
  event.text = std::move(text);
}
// Without data: the block pointer stays null.
inline void SetPayload(TextBytesEvent& event, std::string text) { event.text = std::move(text); }

// A new event of that kind, `MakeEvent<events::LoginDone>(0)`.
template <class Kind, class... Values>
std::shared_ptr<Event> MakeEvent(Values&&... values) {
  auto event = std::make_shared<typename Kind::Layout>(Kind::kType);
  SetPayload(*event, std::forward<Values>(values)...);
  return event;
}

// Answers an operation from the runtime's thread, soon and in the order of the calls: the events are queued there, and
// `effect` runs when SwapEvents gives them out, so that what it changes is seen no sooner. Either all of it is on its
// way, or this throws and nothing is.
void Reply(std::vector<std::shared_ptr<Event>> answers, std::function<void()> effect = nullptr);

// Drops the events for which `unwanted` holds and which SwapEvents has not given out: queued ones, and answers that
// have yet to be queued.
void TakeBack(bool (*unwanted)(const Event& event));

// Drops answers that have not begun, waits for the one that has, and forgets the queued events.
void ForgetEvents();

}  // namespace tarn::velora::offline
