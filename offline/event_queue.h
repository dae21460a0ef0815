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
}  // namespace events

// Sets the first payload fields; those that are not given keep their defaults.
template <class Layout, class... Values>
void SetPayload(Layout& event, Values&&... values) {
  [&]<std::size_t... i>(std::index_sequence<i...>) {
    ((event.*std::get<i>(kPayload<Layout>) = std::forward<Values>(values)), ...);
  }
  (std::index_sequence_for<Values...>());
}

// A new event of that kind, `MakeEvent<events::LoginDone>(0)`.
template <class Kind, class Made = typename Kind::Layout, class... Values>
std::shared_ptr<Event> MakeEvent(Values&&... values) {
  auto event = std::make_shared<Made>(Kind::kType);
  SetPayload<typename Kind::Layout>(*event, std::forward<Values>(values)...);
  return event;
}

// Answers an operation from the runtime's thread, soon and in the order of the calls: the events are queued there, and
// `effect` runs when SwapEvents returns them, so that its changes are not visible earlier. Either all of it is on its
// way, or this throws and nothing is.
void Reply(std::vector<std::shared_ptr<Event>> answers, std::function<void()> effect = nullptr);

// Drops the events for which `unwanted` holds and which SwapEvents has not returned yet: queued ones, and answers that
// have yet to be queued.
void TakeBack(bool (*unwanted)(const Event& event));

// Drops answers that have not begun, waits for the one that has, and forgets the queued events.
void ForgetEvents();

}  // namespace tarn::velora::offline
