// The SDK's named constants. The SDK's library defines their values; they are initialized when it is loaded.
#pragma once

#include <cstdint>
#include <string>

#include "platform/import.h"

namespace tarn::velora {

class ConstProp {
 public:
  using String = std::string;
  using Int = std::int32_t;
  using Float = float;

#define VELORA_CONSTANT(name, kind) static VELORA_SDK_DATA const kind name;
#include "platform/constants.def"
};

}  // namespace tarn::velora
