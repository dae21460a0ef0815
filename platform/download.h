// The SDK's download service. All functions, also those of handlers, are called on the thread of Lua. The service's
// exceptions derive from std::exception.
#pragma once

#include <cstdint>
#include <string>

#include "platform/import.h"

namespace tarn::velora::download {

// Notified at once, unlike the queued events, which arrive a frame later. Has exactly three virtual slots. Strings and
// bytes are valid only during the call and may be null.
class VELORA_SDK_TYPE SyncDownloadHandler {
 public:
  VELORA_SDK_API SyncDownloadHandler();
  SyncDownloadHandler(const SyncDownloadHandler&) = delete;
  SyncDownloadHandler& operator=(const SyncDownloadHandler&) = delete;

  virtual void onInited() = 0;
  virtual void onProgress(const char* text) = 0;
  virtual void onFinish(const char* text, const void* bytes, std::uint64_t count) = 0;

 protected:
  ~SyncDownloadHandler() = default;
};

// Starts the service, which then queues DownloadInited.
VELORA_SDK_API void init();
// Passes a free-form command to the service, which replies by events.
VELORA_SDK_API void extendFunc(const std::string& text);
// Stops queueing DownloadFinish2.
VELORA_SDK_API void disableDownloadFinish2();

// Fill `out` and return true, or return false if there is no string.
VELORA_SDK_API bool query(std::string& out);
VELORA_SDK_API bool getDownloadSDKVersion(std::string& out);
VELORA_SDK_API bool getOrbitSessionId(std::string& out);

// The service does not own the handler. It must be removed before it is destroyed, unless the service makes no more
// calls.
VELORA_SDK_API void addSyncDownloadHandler(SyncDownloadHandler* handler);
VELORA_SDK_API void removeSyncDownloadHandler(SyncDownloadHandler* handler);

// Switches the queued download events on or off.
VELORA_SDK_API void enableAsyncEvent(bool enabled);

}  // namespace tarn::velora::download
