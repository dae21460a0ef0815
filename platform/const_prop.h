// The SDK's named constants. Their values are the SDK's own; they are constructed when its library is loaded.
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
