// Converts values passed by scripts to the types of record fields.
#pragma once

#include <cstdint>
#include <string>

#include "offline/control.h"
#include "platform/types.h"

namespace tarn::velora::offline {

// Store `value` in `field`, or throw std::invalid_argument and leave `field` unchanged if it cannot be converted:
// - A number field takes numbers and booleans; an integer field takes no number with a fraction.
// - A string field takes any scalar. Numbers are formatted as in Lua.
// - A container field takes a container whose elements can be converted. A list becomes a map with its positions,
//   counted from 1, as keys; a map becomes a list only if it is empty.
void Store(const FieldValue& value, std::string& field);
void Store(const FieldValue& value, std::int32_t& field);  // stores the low 32 bits
void Store(const FieldValue& value, std::int64_t& field);
void Store(const FieldValue& value, float& field);
void Store(const FieldValue& value, double& field);
void Store(const FieldValue& value, bool& field);
void Store(const FieldValue& value, StringMap& field);
void Store(const FieldValue& value, IntMap& field);
void Store(const FieldValue& value, StringList& field);

}  // namespace tarn::velora::offline
