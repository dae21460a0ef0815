// The SDK's controller record. The operations are in virtual-table order; the module never calls the first. A record is
// destroyed by the deleter of its shared reference. Any thread that holds a reference may call its operations.
#pragma once

#include <cstdint>

#include "platform/import.h"

namespace tarn::velora {

class VELORA_SDK_TYPE PadRecord {
 public:
  virtual void reserved() {}
  virtual std::int32_t get_action() = 0;
  virtual std::int32_t get_deviceId() = 0;
  virtual std::int64_t get_eventTime() = 0;
  virtual std::int32_t get_keyCode() = 0;
  virtual std::int32_t get_motionKeyCode() = 0;
  virtual float get_pressure() = 0;
  virtual std::int32_t get_state() = 0;
  virtual std::int32_t get_stateAction() = 0;
  virtual float get_x() = 0;
  virtual float get_y() = 0;

 protected:
  ~PadRecord() = default;
};

}  // namespace tarn::velora
