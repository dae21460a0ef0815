// The string forms of records: JSON objects of the fields that differ from their defaults.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/types.h"

namespace tarn::velora::offline {

void AppendJson(std::string& json, std::string_view text);
void AppendJson(std::string& json, bool flag);
void AppendJson(std::string& json, std::int32_t number);
void AppendJson(std::string& json, std::int64_t number);
void AppendJson(std::string& json, float number);
void AppendJson(std::string& json, double number);
void AppendJson(std::string& json, const StringMap& map);
void AppendJson(std::string& json, const IntMap& map);
void AppendJson(std::string& json, const StringList& list);

class JsonObject {
 public:
  template <class Value>
  void Add(std::string_view name, const Value& value) {
    text_ += text_.size() > 1 ? "," : "";
    AppendJson(text_, name);
    text_ += ':';
    AppendJson(text_, value);
  }

  template <class Value>
  void AddUnlessDefault(std::string_view name, const Value& value) {
    if (value != Value{}) Add(name, value);
  }

  std::string Text() const { return text_ + "}"; }

 private:
  std::string text_ = "{";
};

}  // namespace tarn::velora::offline
