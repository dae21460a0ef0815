// The conversions of field values.
#include "offline/field_value.h"

#include <cstdio>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <variant>

namespace tarn::velora::offline {
namespace {

constexpr double kTwoTo63 = 9223372036854775808.0;

std::int64_t Whole(double number) {
  if (number >= -kTwoTo63 && number < kTwoTo63) return static_cast<std::int64_t>(number);
  throw std::invalid_argument("needs a number that fits 64 bits");
}

template <class Number>
void StoreNumber(const FieldValue& value, Number& field) {
  if (const auto* flag = std::get_if<bool>(&value)) {
    field = static_cast<Number>(*flag ? 1 : 0);
  } else if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    field = static_cast<Number>(*integer);
  } else if (const auto* number = std::get_if<double>(&value)) {
    if constexpr (std::is_integral_v<Number>) {
      field = static_cast<Number>(Whole(*number));
    } else {
      field = static_cast<Number>(*number);
    }
  } else {
    throw std::invalid_argument("needs a number");
  }
}

bool IsEmptyContainer(const FieldValue& value) {
  return std::visit(
      [](const auto& held) {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_arithmetic_v<Held> || std::is_same_v<Held, std::string>) {
          return false;
        } else {
          return held.empty();
        }
      },
      value);
}

}  // namespace

void Store(const FieldValue& value, std::string& field) {
  if (const auto* text = std::get_if<std::string>(&value)) {
    field = *text;
  } else if (const auto* flag = std::get_if<bool>(&value)) {
    field = *flag ? "true" : "false";
  } else if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    field = std::to_string(*integer);
  } else if (const auto* number = std::get_if<double>(&value)) {
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.14g", *number);
    field = digits;
  } else {
    throw std::invalid_argument("needs a text");
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

void Store(const FieldValue& value, StringMap& field) {
  StringMap filled;
  if (const auto* map = std::get_if<StringMap>(&value)) {
    filled = *map;
  } else if (const auto* numbers = std::get_if<IntMap>(&value)) {
    for (const auto& [key, number] : *numbers) filled[key] = std::to_string(number);
  } else if (const auto* list = std::get_if<StringList>(&value)) {
    for (const std::string& text : *list) filled[std::to_string(filled.size() + 1)] = text;
  } else {
    throw std::invalid_argument("needs a map of texts");
  }
  field = std::move(filled);
}

void Store(const FieldValue& value, IntMap& field) {
  if (const auto* numbers = std::get_if<IntMap>(&value)) {
    IntMap filled = *numbers;
    field = std::move(filled);
  } else if (IsEmptyContainer(value)) {
    field.clear();
  } else {
    throw std::invalid_argument("needs a map of integers");
  }
}

void Store(const FieldValue& value, StringList& field) {
  if (const auto* list = std::get_if<StringList>(&value)) {
    StringList filled = *list;
    field = std::move(filled);
  } else if (IsEmptyContainer(value)) {
    field.clear();
  } else {
    throw std::invalid_argument("needs a list of texts");
  }
}

}  // namespace tarn::velora::offline
