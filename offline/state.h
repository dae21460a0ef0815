// The state that scripts can observe, guarded by one lock.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "offline/control.h"
#include "platform/download.h"
#include "platform/order_info.h"
#include "platform/product_info.h"
#include "platform/types.h"

namespace tarn::velora::offline {

struct State {
  bool initialised = false;
  bool loggedIn = false;
  bool bound = false;

  StringMap userInfo;
  StringMap textProperties;
  IntMap numberProperties;
  std::optional<std::string> commandLine;
  std::string answeredCommandLine;  // a set answer, kept for the pointer that was returned

  std::unordered_map<std::string, ProductInfo> products;
  IntMap productTypes;
  std::vector<std::shared_ptr<OrderInfo>> checkedOrders;
  std::int32_t lastOrderNumber = 0;

  std::set<std::string> deletedInviters;
  std::optional<std::string> lastShareMessage;
  Fields newShare;

  bool pushEnabled = true;
  bool notificationPending = false;
  bool channelConnected = false;
  bool recording = false;

  std::vector<download::SyncDownloadHandler*> downloadHandlers;
  bool downloadEvents = true;
  bool downloadFinish2 = true;
};

// The state, locked while this lives: `LockedState()->loggedIn`. Nothing may be called out to while it lives.
class LockedState {
 public:
  LockedState();
  State& operator*();
  State* operator->() { return &**this; }

 private:
  std::lock_guard<std::mutex> lock_;
};

// Returns a copy of a member: `Get(&State::loggedIn)`.
template <class Value>
Value Get(Value State::*member) {
  LockedState state;
  return (*state).*member;
}

// Returns a copy of the value under `key` in a map of the state.
template <class Map>
std::optional<typename Map::mapped_type> Find(Map State::*map, const std::string& key) {
  LockedState state;
  const auto found = ((*state).*map).find(key);
  return found == ((*state).*map).end() ? std::nullopt : std::optional(found->second);
}

}  // namespace tarn::velora::offline
