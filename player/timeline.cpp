#include "player/timeline.h"

#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "player/terminal.h"

namespace player {
namespace {

using Clock = std::chrono::steady_clock;

struct Timeline {
  std::ofstream file;
  std::string name;
  Clock::time_point start;
  std::vector<std::string> openSlices{};  // their names, quoted
};
Timeline timeline;

// Returns the length of the UTF-8 sequence that `text` begins with, or 0 if it begins with none.
std::size_t SequenceLength(std::string_view text) {
  const auto byte = [text](std::size_t i) { return static_cast<unsigned>(static_cast<unsigned char>(text[i])); };
  const unsigned first = byte(0);
  const std::size_t length = first < 0x80   ? 1
                             : first < 0xc2 ? 0
                             : first < 0xe0 ? 2
                             : first < 0xf0 ? 3
                             : first < 0xf5 ? 4
                                            : 0;
  if (length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(i) & 0xc0U) != 0x80U) return 0;
  return length;
}

// Returns the string as JSON. Bytes that are not UTF-8 become replacement characters.
std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    const auto first = static_cast<unsigned char>(text[0]);
    if (length == 0) {
      quoted += "\\ufffd";
    } else if (first < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(first));
      quoted += escape;
    } else {
      if (first == '"' || first == '\\') quoted += '\\';
      quoted += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return quoted += '"';
}

// Writes an event with that phase. `rest` has its other members.
void Write(const char* phase, Track track, const std::string& rest) {
  const std::chrono::duration<double, std::micro> time = Clock::now() - timeline.start;
  char row[96];
  std::snprintf(row, sizeof row, ",\n{\"ph\":\"%s\",\"pid\":1,\"tid\":%d,\"ts\":%.3f", phase, static_cast<int>(track),
                time.count());
  timeline.file << row << rest << '}';
}

void NameTrack(Track track, const char* name) {
  Write("M", track, std::string(",\"name\":\"thread_name\",\"args\":{\"name\":\"") + name + "\"}");
}

}  // namespace

void OpenTimeline(const std::filesystem::path& file, const std::string& title) {
  timeline = {std::ofstream(file, std::ios::binary), file.string(), Clock::now()};
  if (!timeline.file) throw std::runtime_error("cannot write " + timeline.name);
  timeline.file << R"([{"ph":"M","pid":1,"tid":1,"ts":0,"name":"process_name","args":{"name":)" << Quoted(title)
                << "}}";
  NameTrack(Track::kScript, "script");
  NameTrack(Track::kCalls, "SDK calls");
  NameTrack(Track::kEvents, "events");
}

void BeginSlice(std::string_view name) {
  if (!timeline.file.is_open()) return;
  timeline.openSlices.push_back(Quoted(name));
  Write("B", Track::kScript, ",\"name\":" + timeline.openSlices.back());
}

void EndSlice(std::string_view error) {
  if (timeline.openSlices.empty()) return;
  const std::string name = ",\"name\":" + timeline.openSlices.back();
  timeline.openSlices.pop_back();
  Write("E", Track::kScript, error.empty() ? name : name + ",\"args\":{\"error\":" + Quoted(error) + "}");
}

void MarkPoint(Track track, std::string_view name) {
  if (timeline.file.is_open()) Write("i", track, ",\"s\":\"t\",\"name\":" + Quoted(name));
}

void CloseTimeline() {
  if (!timeline.file.is_open()) return;
  while (!timeline.openSlices.empty()) EndSlice();
  timeline.file << "]\n";
  timeline.file.close();
  if (!timeline.file) PrintError(("cannot write " + timeline.name).c_str());
}

}  // namespace player
