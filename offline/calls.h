// The start of every operation: runs the call hook, records the call line and returns the operation's result, which a
// player or a test may have set.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "offline/control.h"
#include "platform/event.h"
#include "platform/types.h"

namespace tarn::velora {

class OrderInfo;
class QueryRankInfo;
class ShareInfo;

}  // namespace tarn::velora

namespace tarn::velora::offline {

class Record;

constexpr std::int32_t kOk = 0;
constexpr std::int32_t kFailed = 1;

// Lines kept until they are taken. The oldest are dropped when there are too many, so that memory use is bounded.
class LineBuffer {
 public:
  void Add(std::string line);
  std::vector<std::string> Take();

 private:
  std::mutex mutex_;
  std::deque<std::string> lines_;
  std::size_t bytes_ = 0;
};

// Disables the call hook and the set answers on this thread while it lives, for the runtime's own access to records.
class ControlPause {
 public:
  ControlPause();
  ~ControlPause();
  ControlPause(const ControlPause&) = delete;
  ControlPause& operator=(const ControlPause&) = delete;
};

// Runs the call hook, if one is set. It may throw and may call any operation, so no lock may be held here.
void RunHook(const char* operation);

// Returns the observer, or null if none is set.
Observer* TheObserver();

// Tells the observer that a real SDK would hardly accept this call.
void Doubt(const char* operation, const std::string& reason);

// An argument that is written to the call line without quotes.
struct Verbatim {
  std::string text;
};

// Appends an argument in the form used in call lines. Strings are quoted; null pointers are written as null.
void Append(std::string& line, std::string_view text);
void Append(std::string& line, const char* text);
void Append(std::string& line, double number);
void Append(std::string& line, const StringList& list);
void Append(std::string& line, const StringMap& map);
void Append(std::string& line, const ByteBlock* bytes);
void Append(std::string& line, std::span<const std::int32_t> numbers);
void Append(std::string& line, const Verbatim& verbatim);
void Append(std::string& line, const Record& record);
void Append(std::string& line, const std::shared_ptr<OrderInfo>& record);
void Append(std::string& line, const std::shared_ptr<QueryRankInfo>& record);
void Append(std::string& line, const std::shared_ptr<ShareInfo>& record);

template <std::integral Number>
void Append(std::string& line, Number number) {
  line += std::to_string(number);
}

// Appends `{one, two}`.
template <class Values, class AppendOne>
void AppendList(std::string& line, const Values& values, AppendOne appendOne) {
  const char* separator = "";
  line += '{';
  for (const auto& value : values) {
    line += separator;
    appendOne(value);
    separator = ", ";
  }
  line += '}';
}

inline void Append(std::string& line, bool flag) { line += flag ? "true" : "false"; }

// Appends the arguments, separated by commas.
template <class... Arguments>
void AppendAll(std::string& line, const Arguments&... arguments) {
  [[maybe_unused]] const char* separator = "";
  ((line += separator, Append(line, arguments), separator = ", "), ...);
}

template <class... Arguments>
std::string Joined(const Arguments&... arguments) {
  std::string text;
  AppendAll(text, arguments...);
  return text;
}

// The result of an operation: the answer set for it, looked up on each use, or else a default.
class Operation {
 public:
  explicit Operation(const char* name) : name_(name) {}

  // For an operation that fills a string: stores the set string or number in `out`, else `fallback`. Returns false,
  // with `out` unspecified, if the answer is false or if there is neither an answer nor a fallback.
  bool Text(const std::optional<std::string>& fallback, std::string& out) const;

  // The string of an event that repeats `own`: the set string instead, or an empty one if the answer is false. Numbers
  // are ignored, since they may be the event's code.
  std::string EventText(const std::string& own) const;

  // The set number, with a boolean as 1 or 0.
  template <class Value>
  Value Number(Value fallback) const {
    const std::optional<std::int64_t> number = NumberAnswer();
    return number ? static_cast<Value>(*number) : fallback;
  }
  bool Flag(bool fallback) const { return Number(fallback); }

  // The code of the operation's event: the set number; `failed` if the answer is false.
  std::int32_t Code(std::int32_t success = kOk, std::int32_t failed = kFailed) const;

 private:
  std::optional<std::int64_t> NumberAnswer() const;

  const char* name_;
};

// Returns the start of a call line, "name(". Class names ("OrderInfo.New") are left out.
std::string BeginLine(std::string_view operation);

// Closes the call line, keeps it for TakeCalls and prints it if tracing is on.
void KeepLine(std::string line);

// Starts an operation: runs the hook, then records the call line. If this throws, nothing has been recorded.
template <class... Arguments>
Operation Call(const char* operation, const Arguments&... arguments) {
  RunHook(operation);
  std::string line = BeginLine(operation);
  AppendAll(line, arguments...);
  KeepLine(std::move(line));
  return Operation(operation);
}

// Removes all set answers.
void ForgetAnswers();

}  // namespace tarn::velora::offline
