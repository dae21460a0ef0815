// What every operation of the runtime does first: run the call hook, write down its call line, look for the answer
// that a player or a test has set.
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
#include "platform/types.h"

namespace tarn::velora {

class OrderInfo;
class QueryRankInfo;
class ShareInfo;

}  // namespace tarn::velora

namespace tarn::velora::offline {

class Record;

// Lines until somebody takes them. When nobody does, the oldest give way, so that a long run needs no more memory
// than a short one.
class LineBuffer {
 public:
  void Add(std::string line);
  std::vector<std::string> Take();

 private:
  std::mutex mutex_;
  std::deque<std::string> lines_;
  std::size_t bytes_ = 0;
};

// While one lives, operations that this thread runs call no hook and take no set answers: so the runtime itself reads
// and writes the records that scripts hand in.
class Quiet {
 public:
  Quiet();
  ~Quiet();
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
};

// Runs the call hook, if one is set. It may throw and may call any operation: no lock may be held here.
void RunHook(const char* operation);

// Text that stands in a call line as it is.
struct Verbatim {
  std::string text;
};

// Appends an argument in the form that call lines give it; text is quoted, a null pointer is the word null.
void Append(std::string& line, std::string_view text);
void Append(std::string& line, const char* text);
void Append(std::string& line, double number);
void Append(std::string& line, const StringList& list);
void Append(std::string& line, const StringMap& map);
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

inline void Append(std::string& line, bool flag) { line += flag ? "true" : "false"; }

// Appends the arguments with a comma and a space between them.
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

// A line that begins with the operation's name; the class in front of a record class function's ("OrderInfo.New") is
// left out.
std::string BeginLine(std::string_view operation);

// Keeps a finished line for TakeCalls and prints it where tracing is on.
void KeepLine(std::string line);

// Opens an operation: the hook first, then the call line. It may throw, and nothing has happened then.
template <class... Arguments>
void Call(const char* operation, const Arguments&... arguments) {
  RunHook(operation);
  std::string line = BeginLine(operation);
  line += '(';
  AppendAll(line, arguments...);
  line += ')';
  KeepLine(std::move(line));
}

// What an operation that fills a text answers: the set text, else `fallback`. False when the set answer is false or
// there is no fallback; `out` then means nothing, though it may be written, as the SDK may write it.
bool GiveText(const char* operation, const std::optional<std::string>& fallback, std::string& out);

// The same for an operation whose event carries its own text back: a set number, which may be the event's code, is no
// text.
bool GiveOwnText(const char* operation, const std::string& own, std::string& out);

// The number that is set as an operation's answer, a flag as 1 or 0.
std::optional<std::int64_t> GivenNumber(const char* operation);

// What an operation that returns a flag or a number answers.
bool GiveFlag(const char* operation, bool fallback);
std::int32_t GiveNumber(const char* operation, std::int32_t fallback);

// The code with which an operation's event arrives: a set number is the code, a set false means `failed`.
std::int32_t GiveCode(const char* operation, std::int32_t success, std::int32_t failed);

// Whether an operation, records' getters and setters included, has that name.
bool IsOperation(std::string_view name);

// Forgets the call lines and the set answers.
void ForgetCalls();

}  // namespace tarn::velora::offline
