#include "offline/field_value.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <variant>

namespace tarn::velora::offline {
namespace {

constexpr double kTwoTo63 = 9223372036854775808.0;

std::int64_t ToInteger(double number) {
  if (number >= -kTwoTo63 && number < kTwoTo63 && std::trunc(number) == number)
    return static_cast<std::int64_t>(number);
  throw std::invalid_argument("number has no integer representation");
}

// Returns the name of the value's type in Lua.
const char* TypeOf(const FieldValue& value) {
  const auto* scalar = std::get_if<FieldScalar>(&value);
  if (scalar == nullptr) return "table";
  if (std::holds_alternative<bool>(*scalar)) return "boolean";
  return std::holds_alternative<std::string>(*scalar) ? "string" : "number";
}

[[noreturn]] void FailType(const FieldValue& value, const char* expected) {
  throw std::invalid_argument(std::string(expected) + " expected, got " + TypeOf(value));
}

const FieldScalar& ScalarOf(const FieldValue& value, const char* expected) {
  if (const auto* scalar = std::get_if<FieldScalar>(&value)) return *scalar;
  FailType(value, expected);
}

template <class Number>
void StoreNumber(const FieldValue& value, Number& field) {
  constexpr const char* kExpected = "number";
  const FieldScalar& scalar = ScalarOf(value, kExpected);
  if (const auto* flag = std::get_if<bool>(&scalar)) {
    field = static_cast<Number>(*flag ? 1 : 0);
  } else if (const auto* integer = std::get_if<std::int64_t>(&scalar)) {
    field = static_cast<Number>(*integer);
  } else if (const auto* number = std::get_if<double>(&scalar)) {
    if constexpr (std::is_integral_v<Number>) {
      field = static_cast<Number>(ToInteger(*number));
    } else {
      field = static_cast<Number>(*number);
    }
  } else {
    FailType(value, kExpected);
  }
}

// Formats as Lua does: adds ".0" to a float that looks like an integer.
std::string NumberToString(double number) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.14g", number);
  const std::string text = digits;
  return text.find_first_not_of("-0123456789") == std::string::npos ? text + ".0" : text;
}

template <class Element>
void StoreElement(const std::string& key, const FieldScalar& value, Element& element) {
  try {
    Store(value, element);
  } catch (const std::invalid_argument& error) {
    throw std::invalid_argument("key '" + key + "': " + error.what());
  }
}

template <class Map>
void StoreMap(const FieldValue& value, Map& field) {
  Map filled;
  if (const auto* map = std::get_if<FieldMap>(&value)) {
    for (const auto& [key, element] : *map) StoreElement(key, element, filled[key]);
  } else if (const auto* list = std::get_if<FieldList>(&value)) {
    for (const FieldScalar& element : *list) {
      const std::string key = std::to_string(filled.size() + 1);
      StoreElement(key, element, filled[key]);
    }
  } else {
    FailType(value, "table");
  }
  field = std::move(filled);
}

}  // namespace

void Store(const FieldValue& value, std::string& field) {
  const FieldScalar& scalar = ScalarOf(value, "string");
  if (const auto* text = std::get_if<std::string>(&scalar)) {
    field = *text;
  } else if (const auto* flag = std::get_if<bool>(&scalar)) {
    field = *flag ? "true" : "false";
  } else if (const auto* integer = std::get_if<std::int64_t>(&scalar)) {
    field = std::to_string(*integer);
  } else {
    field = NumberToString(std::get<double>(scalar));
  }
}

void Store(const FieldValue& value, std::int32_t& field) {
  std::int64_t whole = 0;
  StoreNumber(value, whole);
  field = static_cast<std::int32_t>(whole);
}

void Store(const FieldValue& value, std::int64_t& field) { StoreNumber(value, field); }
void Store(const FieldValue& value, float& field) { StoreNumber(value, field); }
void Store(const FieldValue& value, double& field) { StoreNumber(value, field); }

void Store(const FieldValue& value, bool& field) {
  double number = 0;
  StoreNumber(value, number);
  field = number != 0;
}

void Store(const FieldValue& value, StringMap& field) { StoreMap(value, field); }
void Store(const FieldValue& value, IntMap& field) { StoreMap(value, field); }

void Store(const FieldValue& value, StringList& field) {
  StringList filled;
  if (const auto* list = std::get_if<FieldList>(&value)) {
    for (const FieldScalar& element : *list)
      StoreElement(std::to_string(filled.size() + 1), element, filled.emplace_back());
  } else if (const auto* map = std::get_if<FieldMap>(&value); map == nullptr || !map->empty()) {
    FailType(value, "list");
  }
  field = std::move(filled);
}

}  // namespace tarn::velora::offline
