// The SDK's rank query. The operations are in virtual-table order; the module never calls the first. A record is
// destroyed by the deleter of its shared reference. Any thread that holds a reference may call its operations.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/import.h"

namespace tarn::velora {

class VELORA_SDK_TYPE QueryRankInfo {
 public:
  // Returns a reference to a new record, or an empty one if the SDK does not support the class.
  static VELORA_SDK_API std::shared_ptr<QueryRankInfo> New();
  static VELORA_SDK_API std::shared_ptr<QueryRankInfo> New(const std::string& text);

#define VELORA_QUERY_RANK_CONSTANT(name) static VELORA_SDK_DATA const std::string name;
#include "platform/query_rank_constants.def"

  virtual void reserved() {}
  virtual bool get_type(std::string& out) = 0;
  virtual bool get_scope(std::string& out) = 0;
  virtual std::int32_t get_count() = 0;
  virtual void set_type(const std::string& value) = 0;
  virtual void set_scope(const std::string& value) = 0;
  virtual void set_count(std::int32_t value) = 0;
  virtual bool toString(std::string& out) = 0;

 protected:
  ~QueryRankInfo() = default;
};

}  // namespace tarn::velora
