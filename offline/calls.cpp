// Call lines, canned results and the call hook.
#include "offline/calls.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <functional>
#include <iterator>
#include <map>
#include <stdexcept>

#include "offline/record.h"
#include "platform/order_info.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"

namespace tarn::velora::offline {
namespace {

constexpr std::size_t kMaxLines = 100'000;
constexpr std::size_t kMaxBytes = 64U << 20U;

struct CallState {
  LineBuffer lines;
  std::atomic<bool> trace = false;
  std::atomic<void (*)(const char*)> hook = nullptr;
  std::atomic<Observer*> observer = nullptr;

  std::mutex mutex;  // guards `answers`
  std::map<std::string, std::shared_ptr<const Answer>, std::less<>> answers;
  std::atomic<bool> hasAnswers = false;  // lets record getters skip the lock
};

// Never destroyed: the runtime's thread may still be running when the process ends.
CallState& GetCallState() {
  static CallState& state = *new CallState;
  return state;
}

thread_local int pauses = 0;

// Returns the operation's canned result, or null if there is none or canned results are disabled on this thread.
std::shared_ptr<const Answer> FindAnswer(const char* operation) {
  CallState& state = GetCallState();
  if (!state.hasAnswers || pauses > 0) return nullptr;
  std::lock_guard lock(state.mutex);
  const auto found = state.answers.find(std::string_view(operation));
  return found == state.answers.end() ? nullptr : found->second;
}

// Appends a record, or `foreign` if another library made it.
template <class Class>
void AppendReference(std::string& line, const std::shared_ptr<Class>& reference, const char* foreign) {
  if (const auto* record = dynamic_cast<const Record*>(reference.get())) {
    Append(line, *record);
  } else {
    line += reference == nullptr ? "null" : foreign;
  }
}

}  // namespace

void LineBuffer::Add(std::string line) {
  std::lock_guard lock(mutex_);
  const std::size_t size = line.size();
  lines_.push_back(std::move(line));
  bytes_ += size;
  while (lines_.size() > kMaxLines || (bytes_ > kMaxBytes && lines_.size() > 1)) {
    bytes_ -= lines_.front().size();
    lines_.pop_front();
  }
}

std::vector<std::string> LineBuffer::Take() {
  std::lock_guard lock(mutex_);
  std::vector<std::string> taken(std::make_move_iterator(lines_.begin()), std::make_move_iterator(lines_.end()));
  lines_.clear();
  bytes_ = 0;
  return taken;
}

ControlPause::ControlPause() { ++pauses; }
ControlPause::~ControlPause() { --pauses; }

void RunHook(const char* operation) {
  const auto hook = GetCallState().hook.load();
  if (hook != nullptr && pauses == 0) hook(operation);
}

Observer* GetObserver() { return GetCallState().observer; }

void Warn(const char* operation, const std::string& reason) {
  if (Observer* observer = GetObserver()) observer->OnWarning(operation, reason);
}

void Append(std::string& line, std::string_view text) {
  line += '"';
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\') {
      line += '\\';
      line += character;
    } else if (character == '\n') {
      line += "\\n";
    } else if (byte < 0x20 || byte == 0x7f) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\%03u", static_cast<unsigned>(byte));
      line += escape;
    } else {
      line += character;
    }
  }
  line += '"';
}

void Append(std::string& line, const char* text) {
  if (text == nullptr) {
    line += "null";
  } else {
    Append(line, std::string_view(text));
  }
}

void Append(std::string& line, double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.14g", number);
  line += text;
}

void Append(std::string& line, const StringList& list) {
  AppendList(line, list, [&](const std::string& text) { Append(line, text); });
}

void Append(std::string& line, const StringMap& map) {
  const std::map<std::string_view, std::string_view> sorted(map.begin(), map.end());
  AppendList(line, sorted, [&](const auto& pair) {
    Append(line, pair.first);
    line += ": ";
    Append(line, pair.second);
  });
}

void Append(std::string& line, const ByteBlock* bytes) {
  line += bytes == nullptr ? "null" : "<" + std::to_string(bytes->size) + " bytes>";
}

void Append(std::string& line, std::span<const std::int32_t> numbers) {
  if (numbers.data() == nullptr) {
    line += "null";
  } else {
    AppendList(line, numbers, [&](std::int32_t number) { Append(line, number); });
  }
}

void Append(std::string& line, const Verbatim& verbatim) { line += verbatim.text; }

void Append(std::string& line, const Record& record) {
  line += record.RecordClass();
  line += '(';
  line += record.Arguments();
  line += ')';
}

void Append(std::string& line, const std::shared_ptr<OrderInfo>& record) {
  AppendReference(line, record, "OrderInfo()");
}

void Append(std::string& line, const std::shared_ptr<QueryRankInfo>& record) {
  AppendReference(line, record, "QueryRankInfo()");
}

void Append(std::string& line, const std::shared_ptr<ShareInfo>& record) {
  AppendReference(line, record, "ShareInfo()");
}

std::string BeginLine(std::string_view operation) {
  operation.remove_prefix(operation.rfind('.') + 1);
  std::string line;
  line.reserve(64);
  line += operation;
  return line += '(';
}

void KeepLine(std::string line) {
  line += ')';
  if (GetCallState().trace) std::fprintf(stderr, "[sdk] %s\n", line.c_str());
  if (Observer* observer = GetObserver()) observer->OnCall(line);
  GetCallState().lines.Add(std::move(line));
}

bool Operation::Text(const std::optional<std::string>& fallback, std::string& out) const {
  const auto answer = FindAnswer(name_);
  const auto* flag = std::get_if<bool>(answer.get());
  if (const auto* text = std::get_if<std::string>(answer.get())) {
    out = *text;
  } else if (const auto* number = std::get_if<std::int64_t>(answer.get())) {
    out = std::to_string(*number);
  } else if (fallback) {
    out = *fallback;
  } else {
    return false;
  }
  return flag == nullptr || *flag;
}

std::string Operation::EventText(const std::string& own) const {
  const auto answer = FindAnswer(name_);
  if (const auto* text = std::get_if<std::string>(answer.get())) return *text;
  const auto* flag = std::get_if<bool>(answer.get());
  return flag == nullptr || *flag ? own : "";
}

std::int32_t Operation::Code(std::int32_t success, std::int32_t failed) const {
  const auto answer = FindAnswer(name_);
  if (const auto* number = std::get_if<std::int64_t>(answer.get())) return static_cast<std::int32_t>(*number);
  const auto* flag = std::get_if<bool>(answer.get());
  return flag == nullptr || *flag ? success : failed;
}

std::optional<std::int64_t> Operation::NumberAnswer() const {
  const auto answer = FindAnswer(name_);
  if (const auto* number = std::get_if<std::int64_t>(answer.get())) return *number;
  if (const auto* flag = std::get_if<bool>(answer.get())) return *flag ? 1 : 0;
  return std::nullopt;
}

std::vector<std::string> TakeCalls() { return GetCallState().lines.Take(); }

void SetTrace(bool enabled) { GetCallState().trace = enabled; }

void SetCallHook(void (*hook)(const char* operation)) { GetCallState().hook = hook; }

void SetObserver(Observer* observer) { GetCallState().observer = observer; }

void SetAnswer(const std::string& name, Answer answer) {
  const std::span<const std::string_view> names = OperationNames();
  if (std::find(names.begin(), names.end(), name) == names.end())
    throw std::invalid_argument("invalid operation '" + name + "'");
  CallState& state = GetCallState();
  std::lock_guard lock(state.mutex);
  if (std::holds_alternative<std::monostate>(answer)) {
    state.answers.erase(name);
  } else {
    state.answers[name] = std::make_shared<const Answer>(std::move(answer));
  }
  state.hasAnswers = !state.answers.empty();
}

void ClearAnswers() {
  CallState& state = GetCallState();
  std::lock_guard lock(state.mutex);
  state.answers.clear();
  state.hasAnswers = false;
}

}  // namespace tarn::velora::offline
