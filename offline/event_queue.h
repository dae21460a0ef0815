// The queue of events for SwapEvents, and the runtime's thread, which queues the replies to operations.
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

// One type per event, with its number and the layout of its payload.
namespace events {
#define VELORA_EVENT(number, name, layout)        \
  struct name {                                   \
    static constexpr std::int32_t kType = number; \
    using Layout = layout;                        \
  };
#include "platform/events.def"
}  // namespace events

// Sets the first payload fields to `values`; the others keep their defaults.
template <class Layout, class... Values>
void SetPayload(Layout& event, Values&&... values) {
  [&]<std::size_t... i>(std::index_sequence<i...>) {
    ((event.*std::get<i>(kPayload<Layout>) = std::forward<Values>(values)), ...);
  }
  (std::index_sequence_for<Values...>());
}

// Returns a new event of that kind, as in `MakeEvent<events::LoginDone>(0)`.
template <class Kind, class Made = typename Kind::Layout, class... Values>
std::shared_ptr<Event> MakeEvent(Values&&... values) {
  auto event = std::make_shared<Made>(Kind::kType);
  SetPayload<typename Kind::Layout>(*event, std::forward<Values>(values)...);
  return event;
}

// Queues `replies` from the runtime's thread, asynchronously and in call order. `effect` runs in the SwapEvents that
// returns them, so that its changes are not visible earlier. If this throws, nothing is queued.
void Reply(std::vector<std::shared_ptr<Event>> replies, std::function<void()> effect = nullptr);

// Drops the events for which `predicate` returns true and which SwapEvents has not returned, including replies that are
// not queued yet.
void DropEvents(bool (*predicate)(const Event& event));

// Drops all queued events and replies. Waits for a reply that is being queued.
void ClearEvents();

}  // namespace tarn::velora::offline
