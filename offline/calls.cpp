// Call lines, set answers and the call hook.
#include "offline/calls.h"

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

struct Calls {
  LineBuffer lines;
  std::atomic<bool> trace = false;
  std::atomic<void (*)(const char*)> hook = nullptr;

  std::mutex mutex;  // of the answers
  std::map<std::string, Answer, std::less<>> answers;
  std::atomic<bool> hasAnswers = false;  // spares the getters of records the lock
};

// Never destroyed: the runtime's thread may still be at work when the process ends.
Calls& TheCalls() {
  static Calls& calls = *new Calls;
  return calls;
}

thread_local int quietDepth = 0;

// Hands `use` the set answer, or monostate. A variant is not copied here: where the copy of its text fails for want of
// memory, some standard libraries leave it in no state at all.
template <class Use>
auto WithAnswer(const char* operation, Use use) {
  Calls& calls = TheCalls();
  if (!calls.hasAnswers || quietDepth > 0) return use(Answer());
  std::lock_guard lock(calls.mutex);
  const auto found = calls.answers.find(std::string_view(operation));
  return found == calls.answers.end() ? use(Answer()) : use(found->second);
}

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

// `made` is null for a record that is not of this runtime's make.
void AppendReference(std::string& line, const char* recordClass, const void* reference, const Record* made) {
  if (reference == nullptr) {
    line += "null";
  } else if (made == nullptr) {
    line += recordClass;
    line += "()";
  } else {
    Append(line, *made);
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
  std::deque<std::string> lines;
  {
    std::lock_guard lock(mutex_);
    lines.swap(lines_);
    bytes_ = 0;
  }
  return {std::make_move_iterator(lines.begin()), std::make_move_iterator(lines.end())};
}

Quiet::Quiet() { ++quietDepth; }
Quiet::~Quiet() { --quietDepth; }

void RunHook(const char* operation) {
  const auto hook = TheCalls().hook.load();
  if (hook != nullptr && quietDepth == 0) hook(operation);
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
  line += record.MadeWith();
  line += ')';
}

void Append(std::string& line, const std::shared_ptr<OrderInfo>& record) {
  AppendReference(line, "OrderInfo", record.get(), dynamic_cast<const Record*>(record.get()));
}

void Append(std::string& line, const std::shared_ptr<QueryRankInfo>& record) {
  AppendReference(line, "QueryRankInfo", record.get(), dynamic_cast<const Record*>(record.get()));
}

void Append(std::string& line, const std::shared_ptr<ShareInfo>& record) {
  AppendReference(line, "ShareInfo", record.get(), dynamic_cast<const Record*>(record.get()));
}

std::string BeginLine(std::string_view operation) {
  operation.remove_prefix(operation.rfind('.') + 1);
  std::string line;
  line.reserve(64);
  return line += operation;
}

void KeepLine(std::string line) {
  if (TheCalls().trace) std::fprintf(stderr, "[sdk] %s\n", line.c_str());
  TheCalls().lines.Add(std::move(line));
}

bool GiveText(const char* operation, const std::optional<std::string>& fallback, std::string& out) {
  return WithAnswer(operation, [&](const Answer& answer) {
    const auto* flag = std::get_if<bool>(&answer);
    if (const auto* text = std::get_if<std::string>(&answer)) {
      out = *text;
    } else if (const auto* number = std::get_if<std::int64_t>(&answer)) {
      out = std::to_string(*number);
    } else if (fallback) {
      out = *fallback;
    } else {
      return false;
    }
    return flag == nullptr || *flag;
  });
}

bool GiveOwnText(const char* operation, const std::string& own, std::string& out) {
  return WithAnswer(operation, [&](const Answer& answer) {
    const auto* text = std::get_if<std::string>(&answer);
    const auto* flag = std::get_if<bool>(&answer);
    out = text == nullptr ? own : *text;
    return flag == nullptr || *flag;
  });
}

std::optional<std::int64_t> GivenNumber(const char* operation) {
  return WithAnswer(operation, [](const Answer& answer) -> std::optional<std::int64_t> {
    if (const auto* number = std::get_if<std::int64_t>(&answer)) return *number;
    if (const auto* flag = std::get_if<bool>(&answer)) return *flag ? 1 : 0;
    return std::nullopt;
  });
}

bool GiveFlag(const char* operation, bool fallback) { return GivenNumber(operation).value_or(fallback ? 1 : 0) != 0; }

std::int32_t GiveNumber(const char* operation, std::int32_t fallback) {
  return static_cast<std::int32_t>(GivenNumber(operation).value_or(fallback));
}

std::int32_t GiveCode(const char* operation, std::int32_t success, std::int32_t failed) {
  return WithAnswer(operation, [&](const Answer& answer) {
    if (const auto* number = std::get_if<std::int64_t>(&answer)) return static_cast<std::int32_t>(*number);
    const auto* flag = std::get_if<bool>(&answer);
    return flag == nullptr || *flag ? success : failed;
  });
}

std::vector<std::string> TakeCalls() { return TheCalls().lines.Take(); }

void SetTrace(bool enabled) { TheCalls().trace = enabled; }

void SetCallHook(void (*hook)(const char* operation)) { TheCalls().hook = hook; }

void SetAnswer(const std::string& name, Answer answer) {
  if (!IsOperation(name)) throw std::invalid_argument("no operation is called '" + name + "'");
  Calls& calls = TheCalls();
  std::lock_guard lock(calls.mutex);
  if (std::holds_alternative<std::monostate>(answer)) {
    calls.answers.erase(name);
  } else {
    calls.answers.insert_or_assign(name, std::move(answer));
  }
  calls.hasAnswers = !calls.answers.empty();
}

void ForgetCalls() {
  Calls& calls = TheCalls();
  {
    std::lock_guard lock(calls.mutex);
    calls.answers.clear();
    calls.hasAnswers = false;
  }
  calls.lines.Take();
}

}  // namespace tarn::velora::offline
