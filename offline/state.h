// The little state that scripts can observe, under one lock.
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
  std::string answeredCommandLine;  // what a set answer gave; kept for the pointer handed out

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

// The state, locked for as long as this lives: `LockedState()->loggedIn`. Nothing may be called out to meanwhile.
class LockedState {
 public:
  LockedState();
  State* operator->();

 private:
  std::lock_guard<std::mutex> lock_;
};

}  // namespace tarn::velora::offline
