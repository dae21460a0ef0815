// The download service. Nothing is downloaded: texts come back in the events. Handlers hear only what a player makes
// them hear, on the thread of Lua.
#include "platform/download.h"

#include <algorithm>

#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"

namespace tarn::velora::download {

using namespace offline;

namespace {

// Marks the service's own events, so that those that a player posts can be told from them.
struct OwnEvent {
  virtual ~OwnEvent() = default;
};

template <class Layout>
struct Own final : Layout, OwnEvent {
  using Layout::Layout;
};

template <class Kind, class... Values>
std::shared_ptr<Event> MakeOwn(Values&&... values) {
  auto event = std::make_shared<Own<typename Kind::Layout>>(Kind::kType);
  SetPayload<typename Kind::Layout>(*event, std::forward<Values>(values)...);
  return event;
}

bool IsOwn(const Event& event) { return dynamic_cast<const OwnEvent*>(&event) != nullptr; }

void ReplyIfEnabled(std::vector<std::shared_ptr<Event>> answers) {
  const bool enabled = LockedState()->downloadEvents;
  if (enabled) Reply(std::move(answers));
}

Verbatim Named(const SyncDownloadHandler* handler) { return {handler == nullptr ? "null" : "<handler>"}; }

}  // namespace

void init() {
  Call(__func__);
  if (GiveFlag(__func__, true)) ReplyIfEnabled({MakeOwn<events::DownloadInited>()});
}

// A download command runs through at once; its text stands in every event.
void extendFunc(const std::string& text) {
  Call(__func__, text);
  if (!GiveFlag(__func__, true)) return;
  std::vector<std::shared_ptr<Event>> answers = {MakeOwn<events::DownloadProgress>(text),
                                                 MakeOwn<events::DownloadFinish>(text)};
  const bool second = LockedState()->downloadFinish2;
  if (second) answers.push_back(MakeOwn<events::DownloadFinish2>(text));
  ReplyIfEnabled(std::move(answers));
}

void disableDownloadFinish2() {
  Call(__func__);
  LockedState()->downloadFinish2 = false;
}

bool query(std::string& out) {
  Call(__func__);
  if (!GiveText(__func__, "{\"state\":\"idle\"}", out)) return false;
  ReplyIfEnabled({MakeOwn<events::DownloadProgress>(out)});
  return true;
}

bool getDownloadSDKVersion(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_download_sdk", out);
}

bool getOrbitSessionId(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_orbit_session", out);
}

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

// Off, it takes back what is on its way.
void enableAsyncEvent(bool enabled) {
  Call(__func__, enabled);
  LockedState()->downloadEvents = enabled;
  if (!enabled) TakeBack(IsOwn);
}

}  // namespace tarn::velora::download
