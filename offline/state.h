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
  bool initialized = false;
  bool loggedIn = false;
  bool bound = false;

  StringMap userInfo;
  StringMap textProperties;
  IntMap numberProperties;
  std::optional<std::string> commandLine;
  std::string commandLineAnswer;  // a canned result, kept since getCmdLineParameter returned a pointer to it

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

// Locks the state while this lives, as in `LockedState()->loggedIn`. Must not live while records, hooks or the observer
// are called, since those may lock the state again.
class LockedState {
 public:
  LockedState();
  State& operator*();
  State* operator->() { return &**this; }

 private:
  std::lock_guard<std::mutex> lock_;
};

// Returns a copy of a member, as in `Get(&State::loggedIn)`.
template <class Value>
Value Get(Value State::*member) {
  LockedState state;
  return (*state).*member;
}

// Returns a copy of the value under `key` in a map of the state, or nullopt if there is none.
template <class Map>
std::optional<typename Map::mapped_type> Find(Map State::*map, const std::string& key) {
  LockedState state;
  const auto found = ((*state).*map).find(key);
  return found == ((*state).*map).end() ? std::nullopt : std::optional(found->second);
}

}  // namespace tarn::velora::offline
