// The state's one place, and the controls that reach across families.
#include "offline/state.h"

#include <utility>

#include "offline/calls.h"
#include "offline/control.h"
#include "offline/event_queue.h"
#include "offline/log_lines.h"

namespace tarn::velora::offline {
namespace {

struct Place {
  std::mutex mutex;
  State state;
};

// Never destroyed: the runtime's thread may still be at work when the process ends.
Place& ThePlace() {
  static Place& place = *new Place;
  return place;
}

}  // namespace

LockedState::LockedState() : lock_(ThePlace().mutex) {}
State* LockedState::operator->() { return &ThePlace().state; }

void SetCheckedOrders(std::vector<std::shared_ptr<OrderInfo>> orders) { LockedState()->checkedOrders.swap(orders); }

std::vector<download::SyncDownloadHandler*> Handlers() { return LockedState()->downloadHandlers; }

void Reset() {
  ForgetEvents();
  State forgotten;
  {
    LockedState state;
    std::swap(*state.operator->(), forgotten);
  }
  ForgetCalls();
  ForgetLogLines();
}

}  // namespace tarn::velora::offline
