// What every operation begins with: it runs the call hook, records the call line and looks up its canned result.
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

// Lines kept until Take. Drops the oldest if there are too many, so that memory use is bounded. Thread-safe.
class LineBuffer {
 public:
  void Add(std::string line);
  std::vector<std::string> Take();

 private:
  std::mutex mutex_;
  std::deque<std::string> lines_;
  std::size_t bytes_ = 0;
};

// Disables the call hook and canned results on this thread while it lives, for the runtime's own access to records.
class ControlPause {
 public:
  ControlPause();
  ~ControlPause();
  ControlPause(const ControlPause&) = delete;
  ControlPause& operator=(const ControlPause&) = delete;
};

// Runs the call hook, if one is set. The hook may throw and may call operations, so the caller must hold no lock.
void RunHook(const char* operation);

// Returns the observer, or null if none is set.
Observer* GetObserver();

// Tells the observer that a real SDK would probably refuse this call, and why.
void Warn(const char* operation, const std::string& reason);

// A string that is written to the call line without quotes.
struct Verbatim {
  std::string text;
};

// Append an argument in the form used in call lines. Strings are quoted; null pointers are written as null.
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

template <class... Arguments>
void AppendAll(std::string& line, const Arguments&... arguments) {
  [[maybe_unused]] const char* separator = "";
  ((line += separator, Append(line, arguments), separator = ", "), ...);
}

// Returns the arguments in the form used in call lines, separated by commas.
template <class... Arguments>
std::string FormatArguments(const Arguments&... arguments) {
  std::string text;
  AppendAll(text, arguments...);
  return text;
}

// The result of an operation: its canned result, looked up on each use, or a default if there is none.
class Operation {
 public:
  explicit Operation(const char* name) : name_(name) {}

  // For an operation that returns a string: stores the canned string or number in `out`, or `fallback` without one, and
  // returns true. Returns false, with `out` unspecified, if the canned result is false or there is nothing to store.
  bool Text(const std::optional<std::string>& fallback, std::string& out) const;

  // Returns the string for the operation's event: the canned string, an empty one if the canned result is false, else
  // `own`. A number is ignored, since it may be the event's code.
  std::string EventText(const std::string& own) const;

  // Returns the canned number, or a canned boolean as 1 or 0; else `fallback`.
  template <class Value>
  Value Number(Value fallback) const {
    const std::optional<std::int64_t> number = NumberAnswer();
    return number ? static_cast<Value>(*number) : fallback;
  }
  bool Flag(bool fallback) const { return Number(fallback); }

  // Returns the code for the operation's event: the canned number, `failed` if the canned result is false, else
  // `success`.
  std::int32_t Code(std::int32_t success = kOk, std::int32_t failed = kFailed) const;

 private:
  std::optional<std::int64_t> NumberAnswer() const;

  const char* name_;
};

// Returns the start of a call line, "name(", without the class: "New(" for "OrderInfo.New".
std::string BeginLine(std::string_view operation);

// Closes the call line, keeps it for TakeCalls and prints it if tracing is on.
void KeepLine(std::string line);

// Starts an operation: runs the hook, then records the call line. If the hook throws, nothing is recorded.
template <class... Arguments>
Operation Call(const char* operation, const Arguments&... arguments) {
  RunHook(operation);
  std::string line = BeginLine(operation);
  AppendAll(line, arguments...);
  KeepLine(std::move(line));
  return Operation(operation);
}

// Removes all canned results.
void ClearAnswers();

}  // namespace tarn::velora::offline
