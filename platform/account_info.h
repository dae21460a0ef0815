// The SDK's account in the social graph. The operations are in virtual-table order; the module never calls the first. A
// record is destroyed by the deleter of its shared reference. Any thread that holds a reference may call its
// operations.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/import.h"

namespace tarn::velora {

class VELORA_SDK_TYPE AccountInfo {
 public:
  // Returns a reference to a new record, or an empty one if the SDK does not support the class.
  static VELORA_SDK_API std::shared_ptr<AccountInfo> New();
  static VELORA_SDK_API std::shared_ptr<AccountInfo> New(const std::string& text);

  virtual void reserved() {}
  virtual bool get_accountId(std::string& out) = 0;
  virtual bool get_icon(std::string& out) = 0;
  virtual bool get_idType(std::string& out) = 0;
  virtual bool get_nickname(std::string& out) = 0;
  virtual std::int64_t get_rank() = 0;
  virtual double get_rankScore() = 0;
  virtual bool get_relationType(std::string& out) = 0;
  virtual bool get_remark(std::string& out) = 0;
  virtual bool get_statusMessage(std::string& out) = 0;
  virtual bool get_inGame() = 0;
  virtual void set_accountId(const std::string& value) = 0;
  virtual void set_icon(const std::string& value) = 0;
  virtual void set_idType(const std::string& value) = 0;
  virtual void set_inGame(bool value) = 0;
  virtual void set_nickname(const std::string& value) = 0;
  virtual void set_rank(std::int64_t value) = 0;
  virtual void set_rankScore(double value) = 0;
  virtual void set_relationType(const std::string& value) = 0;
  virtual void set_remark(const std::string& value) = 0;
  virtual void set_statusMessage(const std::string& value) = 0;
  virtual bool toString(std::string& out) = 0;

 protected:
  ~AccountInfo() = default;
};

}  // namespace tarn::velora
