// The field type of each accessor family, under the names used in the record rows.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "platform/types.h"

namespace tarn::velora::families {

using String = std::string;
using Int = std::int32_t;
using Int64 = std::int64_t;
using Float = float;
using Double = double;
using IntAsNumber = std::int32_t;  // a number for Lua, an integer for the SDK
using Bool = bool;
using StringMap = velora::StringMap;
using IntMap = velora::IntMap;
using StrictList = StringList;  // every element must be a string or a number
using CachedList = StringList;
using CachedMap = velora::StringMap;
using CachedIntMap = velora::IntMap;
using RecordMap = velora::StringMap;  // its getter returns whether there is a map

// The parameter type of the setter of a field.
template <class Value>
using Parameter = std::conditional_t<std::is_arithmetic_v<Value>, Value, const Value&>;

}  // namespace tarn::velora::families
