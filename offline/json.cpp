// Strings are assumed to be UTF-8: bytes from 0x80 on are copied.
#include "offline/json.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <map>

namespace tarn::velora::offline {
namespace {

// Appends the shortest string that converts back to the same number: 0.99, not 0.99000000953674. JSON has no infinity
// and no NaN; both become null.
template <class Number>
void AppendNumber(std::string& json, Number number) {
  char text[32];
  if (!std::isfinite(number)) {
    json += "null";
    return;
  }
  const auto end = std::to_chars(text, text + sizeof text, number).ptr;
  json.append(text, end);
}

template <class Map>
void AppendSorted(std::string& json, const Map& map) {
  const std::map<std::string_view, typename Map::mapped_type> sorted(map.begin(), map.end());
  JsonObject object;
  for (const auto& [key, value] : sorted) object.Add(key, value);
  json += object.Text();
}

}  // namespace

void AppendJson(std::string& json, std::string_view text) {
  json += '"';
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\') {
      json += '\\';
      json += character;
    } else if (byte < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(byte));
      json += escape;
    } else {
      json += character;
    }
  }
  json += '"';
}

void AppendJson(std::string& json, bool flag) { json += flag ? "true" : "false"; }
void AppendJson(std::string& json, std::int32_t number) { json += std::to_string(number); }
void AppendJson(std::string& json, std::int64_t number) { json += std::to_string(number); }
void AppendJson(std::string& json, float number) { AppendNumber(json, number); }
void AppendJson(std::string& json, double number) { AppendNumber(json, number); }
void AppendJson(std::string& json, const StringMap& map) { AppendSorted(json, map); }
void AppendJson(std::string& json, const IntMap& map) { AppendSorted(json, map); }

void AppendJson(std::string& json, const StringList& list) {
  const char* separator = "[";
  for (const std::string& text : list) {
    json += separator;
    AppendJson(json, text);
    separator = ",";
  }
  json += list.empty() ? "[]" : "]";
}

}  // namespace tarn::velora::offline
