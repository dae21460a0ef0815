// The download service. It downloads nothing; its events repeat the strings passed to it. Only the player calls the
// handlers, on Lua's thread.
#include "platform/download.h"

#include <algorithm>

#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"

namespace tarn::velora::download {

using namespace offline;

namespace {

// Base of the service's own events, which distinguishes them from events posted by a player.
struct ServiceEvent {
  virtual ~ServiceEvent() = default;
};

template <class Base>
struct ServiceLayout final : Base, ServiceEvent {
  using Base::Base;
};

template <class Kind, class... Values>
std::shared_ptr<Event> MakeServiceEvent(Values&&... values) {
  return MakeEvent<Kind, ServiceLayout<typename Kind::Layout>>(std::forward<Values>(values)...);
}

bool IsServiceEvent(const Event& event) { return dynamic_cast<const ServiceEvent*>(&event) != nullptr; }

void ReplyIfEnabled(std::vector<std::shared_ptr<Event>> replies) {
  if (Get(&State::downloadEvents)) Reply(std::move(replies));
}

Verbatim FormatHandler(const SyncDownloadHandler* handler) { return {handler == nullptr ? "null" : "<handler>"}; }

}  // namespace

SyncDownloadHandler::SyncDownloadHandler() = default;

void init() {
  if (Call(__func__).Flag(true)) ReplyIfEnabled({MakeServiceEvent<events::DownloadInited>()});
}

// Every command completes at once. The events repeat it.
void extendFunc(const std::string& text) {
  if (!Call(__func__, text).Flag(true)) return;
  std::vector<std::shared_ptr<Event>> replies = {MakeServiceEvent<events::DownloadProgress>(text),
                                                 MakeServiceEvent<events::DownloadFinish>(text)};
  if (Get(&State::downloadFinish2)) replies.push_back(MakeServiceEvent<events::DownloadFinish2>(text));
  ReplyIfEnabled(std::move(replies));
}

void disableDownloadFinish2() {
  Call(__func__);
  LockedState()->downloadFinish2 = false;
}

bool query(std::string& out) {
  const bool found = Call(__func__).Text("{\"state\":\"idle\"}", out);
  if (found) ReplyIfEnabled({MakeServiceEvent<events::DownloadProgress>(out)});
  return found;
}

bool getDownloadSDKVersion(std::string& out) { return Call(__func__).Text("offline_download_sdk", out); }
bool getOrbitSessionId(std::string& out) { return Call(__func__).Text("offline_orbit_session", out); }

void addSyncDownloadHandler(SyncDownloadHandler* handler) {
  Call(__func__, FormatHandler(handler));
  if (handler == nullptr) return;
  LockedState state;
  auto& handlers = state->downloadHandlers;
  if (std::find(handlers.begin(), handlers.end(), handler) == handlers.end()) handlers.push_back(handler);
}

void removeSyncDownloadHandler(SyncDownloadHandler* handler) {
  Call(__func__, FormatHandler(handler));
  std::erase(LockedState()->downloadHandlers, handler);
}

// Disabling also drops the events that have not been delivered.
void enableAsyncEvent(bool enabled) {
  Call(__func__, enabled);
  LockedState()->downloadEvents = enabled;
  if (!enabled) DropEvents(IsServiceEvent);
}

}  // namespace tarn::velora::download
