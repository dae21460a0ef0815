// How a player or a test steers the offline runtime: what was called, what to answer, what to post.
// Every function may be called from any thread unless it says otherwise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

#include "platform/download.h"
#include "platform/event.h"
#include "platform/product_info.h"
#include "platform/types.h"

namespace tarn::velora::offline {

// What an operation answers: monostate is the default again.
using Answer = std::variant<std::monostate, bool, std::int64_t, std::string>;

// A field's value as a script gives it; converted to the field's own type where it is stored.
using FieldScalar = std::variant<bool, std::int64_t, double, std::string>;
struct FieldMap : std::unordered_map<std::string, FieldScalar> {
  using unordered_map::unordered_map;
  FieldMap(const StringMap& map) : unordered_map(map.begin(), map.end()) {}
  FieldMap(const IntMap& map) : unordered_map(map.begin(), map.end()) {}
};
using FieldList = std::vector<FieldScalar>;
using FieldValue = std::variant<FieldScalar, FieldMap, FieldList>;
using Fields = std::unordered_map<std::string, FieldValue>;

// The call lines since the last TakeCalls, oldest first. The newest 100,000 are kept, fewer where they are long and
// come to more than 64 MiB.
VELORA_SDK_API std::vector<std::string> TakeCalls();

// The log lines since the last TakeLog, each as it goes to stderr: "[VELORA] 0 text", "[VELORA] ERROR text". As many
// are kept as there are of call lines.
VELORA_SDK_API std::vector<std::string> TakeLog();

// Prints each call line to stderr as "[sdk] LINE" from now on, or no longer.
VELORA_SDK_API void SetTrace(bool enabled);

// Whether log lines go to stderr as well as to TakeLog (they do by default).
VELORA_SDK_API void SetLogToStderr(bool enabled);

// Whether the word ERROR stands out in red there (it does not by default).
VELORA_SDK_API void SetLogColour(bool enabled);

// What the operation `name` ("getChannel", "OrderInfo.New", "OrderInfo.get_aid", "OrderInfo.toString") answers from
// now on: text or false for one that fills a string, a boolean or an integer for one that returns it. False for a
// factory gives no record. An operation that is answered by an event takes the event's flag, code or order status from
// it; false is a failure, and where a whole list, a text or a view is the answer, an empty or missing one. A name that
// no operation has throws std::invalid_argument.
VELORA_SDK_API void SetAnswer(const std::string& name, Answer answer);

// Queues an event for the next SwapEvents. An empty reference is ignored.
VELORA_SDK_API void Post(std::shared_ptr<Event> event);

// Records of the runtime, with every field named in `fields` set, read-only ones included. A name that the class
// does not have and a value that does not fit its field throw std::invalid_argument; the text names class and field.
VELORA_SDK_API std::shared_ptr<OrderInfo> MakeOrder(const Fields& fields);
VELORA_SDK_API std::shared_ptr<AccountInfo> MakeAccount(const Fields& fields);
VELORA_SDK_API std::shared_ptr<SkuDetailsInfo> MakeSku(const Fields& fields);
VELORA_SDK_API std::shared_ptr<PadRecord> MakePad(const Fields& fields);

// Share requests that are made from now on have these fields from their birth. Throws as MakeOrder does.
VELORA_SDK_API void SetNewShare(const Fields& fields);

// Puts a product into the registry, its maps included, in the place of one of the same id.
VELORA_SDK_API void SetProduct(ProductInfo product);

// Gives zvGetCheckedOrders' list as it stands, empty references allowed.
VELORA_SDK_API void SetCheckedOrders(std::vector<std::shared_ptr<OrderInfo>> orders);

// The registered download handlers, in the order of their registration. They belong to who registered them, and are
// valid until they are removed.
VELORA_SDK_API std::vector<download::SyncDownloadHandler*> Handlers();

// The records of all classes that are alive.
VELORA_SDK_API std::size_t LiveRecords();

// Runs `hook` at the start of every operation that the runtime did not start itself, on its thread, until it is
// replaced; null for none. It is given the name under which SetAnswer knows the operation; records' getters and
// setters ("OrderInfo.get_aid") and "SwapEvents" have it too, the log library has not. For tests that let an operation
// throw or call back.
VELORA_SDK_API void SetCallHook(void (*hook)(const char* operation));

// Forgets all state, answers, queued events, lines and handlers, drops the answers that have not begun and waits for
// the one that has. Log channels, the hook and the switches stay as they are.
VELORA_SDK_API void Reset();

// Stops the runtime's thread once it has answered what it still has to; call it before the process ends. A later
// operation starts it anew.
VELORA_SDK_API void Stop();

}  // namespace tarn::velora::offline
