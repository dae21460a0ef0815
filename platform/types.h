// The SDK's container types, by the names that the declarations use.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarn::velora {

using StringList = std::vector<std::string>;
using StringMap = std::unordered_map<std::string, std::string>;
using IntMap = std::unordered_map<std::string, std::int32_t>;

#if defined(_MSC_VER)
static_assert(_ITERATOR_DEBUG_LEVEL == 0, "the SDK's release library needs /MD and _ITERATOR_DEBUG_LEVEL=0");
#endif

}  // namespace tarn::velora
