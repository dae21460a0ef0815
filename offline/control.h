// The controls of the offline runtime, for a player or a test: recorded calls, canned results, posted events.
// All functions may be called from any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "platform/download.h"
#include "platform/event.h"
#include "platform/product_info.h"
#include "platform/types.h"

namespace tarn::velora::offline {

// The canned result of an operation; monostate restores the default.
using Answer = std::variant<std::monostate, bool, std::int64_t, std::string>;

// A field's value as a script passes it; converted to the field's type when it is stored.
using FieldScalar = std::variant<bool, std::int64_t, double, std::string>;
struct FieldMap : std::unordered_map<std::string, FieldScalar> {
  using unordered_map::unordered_map;
  FieldMap(const StringMap& map) : unordered_map(map.begin(), map.end()) {}
  FieldMap(const IntMap& map) : unordered_map(map.begin(), map.end()) {}
};
using FieldList = std::vector<FieldScalar>;
using FieldValue = std::variant<FieldScalar, FieldMap, FieldList>;
using Fields = std::unordered_map<std::string, FieldValue>;

// Returns the call lines since the last TakeCalls, oldest first. Only the newest 100,000 are kept, and at most 64 MiB.
VELORA_SDK_API std::vector<std::string> TakeCalls();

// Returns the log lines since the last TakeLog, as they are written to stderr: "[VELORA] 0 text", "[VELORA] ERROR
// text". The same limits apply.
VELORA_SDK_API std::vector<std::string> TakeLog();

// Sets whether each call line is printed to stderr as "[sdk] LINE" (off by default).
VELORA_SDK_API void SetTrace(bool enabled);

// Sets whether log lines are also written to stderr (on by default).
VELORA_SDK_API void SetLogToStderr(bool enabled);

// Sets whether the word ERROR is red on stderr (off by default).
VELORA_SDK_API void SetLogColour(bool enabled);

// Sets the canned result of an operation ("getChannel", "OrderInfo.New", "OrderInfo.get_aid", "OrderInfo.toString"):
// - one that returns a string: the string, or false for none;
// - one that returns a boolean or a number: that value;
// - one that creates a record: false for a null reference;
// - one that causes an event: the event's flag, code or order status, or false for failure. If the event has a list or
//   a string, false makes it empty; if the operation opens a view, false makes it fail.
// Throws std::invalid_argument if there is no operation of that name.
VELORA_SDK_API void SetAnswer(const std::string& name, Answer answer);

// Returns the names that SetAnswer knows.
VELORA_SDK_API std::span<const std::string_view> OperationNames();

// Queues an event for the next SwapEvents. An empty reference is ignored.
VELORA_SDK_API void Post(std::shared_ptr<Event> event);

// Return a new record with the given fields; read-only fields may be given too. Throw std::invalid_argument, with a
// message that names class and field, if the class has no such field or the value does not convert to its type.
VELORA_SDK_API std::shared_ptr<OrderInfo> MakeOrder(const Fields& fields);
VELORA_SDK_API std::shared_ptr<AccountInfo> MakeAccount(const Fields& fields);
VELORA_SDK_API std::shared_ptr<SkuDetailsInfo> MakeSku(const Fields& fields);
VELORA_SDK_API std::shared_ptr<PadRecord> MakePad(const Fields& fields);

// Sets the initial fields of share requests that are created later. Throws as MakeOrder does.
VELORA_SDK_API void SetNewShare(const Fields& fields);

// Adds a product to the registry, replacing one of the same id.
VELORA_SDK_API void SetProduct(ProductInfo product);

// Sets the list that zvGetCheckedOrders returns; null entries are allowed.
VELORA_SDK_API void SetCheckedOrders(std::vector<std::shared_ptr<OrderInfo>> orders);

// Returns the registered download handlers, in order of registration. Each is valid until it is removed.
VELORA_SDK_API std::vector<download::SyncDownloadHandler*> Handlers();

// Returns the number of live records of all classes.
VELORA_SDK_API std::size_t LiveRecords();

// Sets a function that every operation calls first, on the operation's thread; null for none. Its argument is the name
// used by SetAnswer. Getters and setters of records ("OrderInfo.get_aid") and "SwapEvents" call it too; the log library
// and the runtime's own calls do not. Lets tests make an operation throw or call back.
VELORA_SDK_API void SetCallHook(void (*hook)(const char* operation));

// Notified of what the runtime does, on the thread that does it. The functions must not call operations. What
// OnLog throws leaves the log library.
class Observer {
 public:
  virtual ~Observer() = default;
  // A call line was recorded, or a log line written.
  virtual void OnCall(const std::string&) {}
  virtual void OnLog(const std::string&) {}
  // SwapEvents is about to return these events.
  virtual void OnEvents(const std::vector<std::shared_ptr<Event>>&) {}
  // A real SDK would probably refuse this call, for this reason.
  virtual void OnWarning(const char* /*operation*/, const std::string& /*reason*/) {}
};

// Sets the observer, which must stay alive while it is set; null for none.
VELORA_SDK_API void SetObserver(Observer* observer);

// Returns the event's name and payload in the form of call lines, `LoginDone(0)`, with the number of an unknown type as
// its name.
VELORA_SDK_API std::string EventText(const Event& event);

// Clears all state, canned results, handlers, lines and undelivered events; waits for an event that is being queued.
// Keeps log channels, the hook, the observer and the trace and log settings.
VELORA_SDK_API void Reset();

// Stops the runtime's thread after it has queued all pending events. Call it before the process ends. A later operation
// starts the thread again.
VELORA_SDK_API void Stop();

}  // namespace tarn::velora::offline
