// The global state, and the controls that affect several families of operations.
#include "offline/state.h"

#include <utility>

#include "offline/calls.h"
#include "offline/control.h"
#include "offline/event_queue.h"

namespace tarn::velora::offline {
namespace {

struct Global {
  std::mutex mutex;
  State state;
};

// Never destroyed: the runtime's thread may still be running when the process ends.
Global& GetGlobal() {
  static Global& global = *new Global;
  return global;
}

}  // namespace

LockedState::LockedState() : lock_(GetGlobal().mutex) {}
State& LockedState::operator*() { return GetGlobal().state; }

void SetCheckedOrders(std::vector<std::shared_ptr<OrderInfo>> orders) { LockedState()->checkedOrders.swap(orders); }

std::vector<download::SyncDownloadHandler*> Handlers() { return Get(&State::downloadHandlers); }

void Reset() {
  ClearEvents();
  State old;  // destroyed without the lock, since destroying a record may call back
  std::swap(*LockedState(), old);
  ClearAnswers();
  TakeCalls();
  TakeLog();
}

}  // namespace tarn::velora::offline
