// A script's value for a record's field, converted to the field's own type.
#pragma once

#include <cstdint>
#include <string>

#include "offline/control.h"
#include "platform/types.h"

namespace tarn::velora::offline {

// Each throws std::invalid_argument, and leaves the field as it is, if the value does not fit the type: a number field
// takes numbers and booleans, an integer field whole ones only, a string field any scalar, numbers in the form that Lua
// uses. A container field takes the containers that convert to it without loss (a list becomes
// a map by its positions, counted from 1), each element as a field of the element's type would.
void Store(const FieldValue& value, std::string& field);
void Store(const FieldValue& value, std::int32_t& field);  // the low 32 bits
void Store(const FieldValue& value, std::int64_t& field);
void Store(const FieldValue& value, float& field);
void Store(const FieldValue& value, double& field);
void Store(const FieldValue& value, bool& field);
void Store(const FieldValue& value, StringMap& field);
void Store(const FieldValue& value, IntMap& field);
void Store(const FieldValue& value, StringList& field);

}  // namespace tarn::velora::offline
