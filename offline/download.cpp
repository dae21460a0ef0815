// The download service. Nothing is downloaded; events repeat the strings passed in. Handlers are only called through
// the player, on the thread of Lua.
#include "platform/download.h"

#include <algorithm>

#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"

namespace tarn::velora::download {

using namespace offline;

namespace {

// Marks the service's own events, to tell them from those that a player posts.
struct OwnEvent {
  virtual ~OwnEvent() = default;
};

template <class Base>
struct OwnLayout final : Base, OwnEvent {
  using Base::Base;
};

template <class Kind, class... Values>
std::shared_ptr<Event> MakeOwn(Values&&... values) {
  return MakeEvent<Kind, OwnLayout<typename Kind::Layout>>(std::forward<Values>(values)...);
}

bool IsOwn(const Event& event) { return dynamic_cast<const OwnEvent*>(&event) != nullptr; }

void ReplyIfEnabled(std::vector<std::shared_ptr<Event>> answers) {
  if (Get(&State::downloadEvents)) Reply(std::move(answers));
}

Verbatim Named(const SyncDownloadHandler* handler) { return {handler == nullptr ? "null" : "<handler>"}; }

}  // namespace

void init() {
  if (Call(__func__).Flag(true)) ReplyIfEnabled({MakeOwn<events::DownloadInited>()});
}

// A download command completes at once; every event repeats it.
void extendFunc(const std::string& text) {
  if (!Call(__func__, text).Flag(true)) return;
  std::vector<std::shared_ptr<Event>> answers = {MakeOwn<events::DownloadProgress>(text),
                                                 MakeOwn<events::DownloadFinish>(text)};
  if (Get(&State::downloadFinish2)) answers.push_back(MakeOwn<events::DownloadFinish2>(text));
  ReplyIfEnabled(std::move(answers));
}

void disableDownloadFinish2() {
  Call(__func__);
  LockedState()->downloadFinish2 = false;
}

bool query(std::string& out) {
  const bool found = Call(__func__).Text("{\"state\":\"idle\"}", out);
  if (found) ReplyIfEnabled({MakeOwn<events::DownloadProgress>(out)});
  return found;
}

bool getDownloadSDKVersion(std::string& out) { return Call(__func__).Text("offline_download_sdk", out); }
bool getOrbitSessionId(std::string& out) { return Call(__func__).Text("offline_orbit_session", out); }

void addSyncDownloadHandler(SyncDownloadHandler* handler) {
  Call(__func__, Named(handler));
  if (handler == nullptr) return;
  LockedState state;
  auto& handlers = state->downloadHandlers;
  if (std::find(handlers.begin(), handlers.end(), handler) == handlers.end()) handlers.push_back(handler);
}

void removeSyncDownloadHandler(SyncDownloadHandler* handler) {
  Call(__func__, Named(handler));
  std::erase(LockedState()->downloadHandlers, handler);
}

// Disabling also drops the events that have not been delivered.
void enableAsyncEvent(bool enabled) {
  Call(__func__, enabled);
  LockedState()->downloadEvents = enabled;
  if (!enabled) TakeBack(IsOwn);
}

}  // namespace tarn::velora::download
