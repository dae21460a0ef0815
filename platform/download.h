// The SDK's download service. Everything here is called on the thread of Lua; what it throws derives from
// std::exception.
#pragma once

#include <cstdint>
#include <string>

#include "platform/import.h"

namespace tarn::velora::download {

// Notified at once, unlike the queued events, which arrive a frame later. Exactly three virtual slots.
// Strings and bytes are valid during the call only; either may be null.
class VELORA_SDK_TYPE SyncDownloadHandler {
 public:
  SyncDownloadHandler() = default;
  SyncDownloadHandler(const SyncDownloadHandler&) = delete;
  SyncDownloadHandler& operator=(const SyncDownloadHandler&) = delete;

  virtual void onInited() = 0;
  virtual void onProgress(const char* text) = 0;
  virtual void onFinish(const char* text, const void* bytes, std::uint64_t count) = 0;

 protected:
  ~SyncDownloadHandler() = default;
};

// Starts the service, which then queues its first event.
VELORA_SDK_API void init();
// Passes a free-form command to the service, which replies by events.
VELORA_SDK_API void extendFunc(const std::string& text);
// No DownloadFinish2 is queued from now on.
VELORA_SDK_API void disableDownloadFinish2();

// Each fills `out` and returns whether there is a string.
VELORA_SDK_API bool query(std::string& out);
VELORA_SDK_API bool getDownloadSDKVersion(std::string& out);
VELORA_SDK_API bool getOrbitSessionId(std::string& out);

// The handler is not owned; it must be removed before it dies, unless the SDK makes no more calls.
VELORA_SDK_API void addSyncDownloadHandler(SyncDownloadHandler* handler);
VELORA_SDK_API void removeSyncDownloadHandler(SyncDownloadHandler* handler);

// Switches the queued download events on or off.
VELORA_SDK_API void enableAsyncEvent(bool enabled);

}  // namespace tarn::velora::download
