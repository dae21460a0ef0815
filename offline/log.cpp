// The log library. Writes lines to stderr and keeps them for TakeLog. Throws only what the observer throws.
#include "platform/log.h"

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <exception>
#include <mutex>
#include <string>
#include <vector>

#include "offline/calls.h"
#include "offline/control.h"
#include "platform/operations.h"

namespace tarn::velora {

std::uint32_t LogChannel = 0;

}  // namespace tarn::velora

namespace tarn::log {
namespace {

struct LogState {
  velora::offline::LineBuffer lines;
  std::atomic<bool> toStderr = true;
  std::atomic<bool> colour = false;
  std::mutex mutex;                   // guards `channels`
  std::vector<std::string> channels;  // the id is the index plus one
};

// Never destroyed: static destructors may log.
LogState& GetLogState() {
  static LogState& log = *new LogState;
  return log;
}

std::string ChannelName(std::uint32_t channel) {
  LogState& log = GetLogState();
  std::lock_guard lock(log.mutex);
  return channel >= 1 && channel <= log.channels.size() ? log.channels[channel - 1] : "?";
}

// Appends the formatted string, which may have any length.
void AppendFormatted(std::string& line, const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, again);
  va_end(again);
  if (length < 0) {
    line += format;  // the arguments cannot be formatted
    return;
  }
  const std::size_t start = line.size();
  line.resize(start + static_cast<std::size_t>(length) + 1);
  std::vsnprintf(line.data() + start, static_cast<std::size_t>(length) + 1, format, arguments);
  line.pop_back();
}

// Prints the level in red if `isError` and colours are on.
void Write(std::uint32_t channel, const char* level, bool isError, const char* format, std::va_list arguments) {
  std::string line;
  try {
    const std::string start = "[" + ChannelName(channel) + "] ";
    std::string rest = " ";
    if (format != nullptr) AppendFormatted(rest, format, arguments);
    line = start + level + rest;
    if (GetLogState().toStderr) {
      const bool red = isError && GetLogState().colour;
      std::fprintf(stderr, "%s\n", red ? (start + "\033[31m" + level + "\033[0m" + rest).c_str() : line.c_str());
    }
    GetLogState().lines.Add(line);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "[?] ERROR a log line is dropped: %s\n", error.what());
    return;
  }
  if (auto* observer = velora::offline::GetObserver()) observer->OnLog(line);
}

}  // namespace

std::uint32_t RegisterChannel(const char* name) {
  const std::string text = name == nullptr ? "" : name;
  LogState& log = GetLogState();
  std::lock_guard lock(log.mutex);
  const auto found = std::find(log.channels.begin(), log.channels.end(), text);
  const auto index = found - log.channels.begin();
  if (found == log.channels.end()) log.channels.push_back(text);
  return static_cast<std::uint32_t>(index) + 1;
}

void Log(std::uint32_t channel, std::int32_t level, const char* format, ...) {
  char text[16];
  std::snprintf(text, sizeof text, "%d", static_cast<int>(level));
  std::va_list arguments;
  va_start(arguments, format);
  Write(channel, text, false, format, arguments);
  va_end(arguments);
}

void LogError(std::uint32_t channel, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  Write(channel, "ERROR", true, format, arguments);
  va_end(arguments);
}

}  // namespace tarn::log

namespace tarn::velora::offline {

std::vector<std::string> TakeLog() { return log::GetLogState().lines.Take(); }
void SetLogToStderr(bool enabled) { log::GetLogState().toStderr = enabled; }
void SetLogColour(bool enabled) { log::GetLogState().colour = enabled; }

}  // namespace tarn::velora::offline
