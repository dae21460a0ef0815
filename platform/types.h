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

}  // namespace tarn::velora
