// The SDK's share request. The operations are in virtual-table order; the module never calls the first. A record is
// destroyed by the deleter of its shared reference. Any thread that holds a reference may call its operations.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/import.h"
#include "platform/types.h"

namespace tarn::velora {

class VELORA_SDK_TYPE ShareInfo {
 public:
  // Returns a reference to a new record, or an empty one if the SDK does not support the class.
  static VELORA_SDK_API std::shared_ptr<ShareInfo> New();
  static VELORA_SDK_API std::shared_ptr<ShareInfo> New(const std::string& text);

#define VELORA_SHARE_CONSTANT(name) static VELORA_SDK_DATA const std::string name;
#include "platform/share_constants.def"

  virtual void reserved() {}
  virtual void get_aLinkParams(StringMap& out) = 0;
  virtual void get_altTextMsg(StringMap& out) = 0;
  virtual bool get_desc(std::string& out) = 0;
  virtual bool get_extJson(std::string& out) = 0;
  virtual bool get_failMsg(std::string& out) = 0;
  virtual void get_iLinkParams(StringMap& out) = 0;
  virtual bool get_image(std::string& out) = 0;
  virtual bool get_link(std::string& out) = 0;
  virtual void get_linkParams(StringMap& out) = 0;
  virtual void get_linkTextMsg(StringMap& out) = 0;
  virtual bool get_musicUrl(std::string& out) = 0;
  virtual bool get_objectValue(std::string& out) = 0;
  virtual bool get_roomId(std::string& out) = 0;
  virtual bool get_roomToken(std::string& out) = 0;
  virtual bool get_scope(std::string& out) = 0;
  virtual std::int32_t get_shareChannel() = 0;
  virtual void get_subTextMsg(StringMap& out) = 0;
  virtual bool get_templateId(std::string& out) = 0;
  virtual bool get_text(std::string& out) = 0;
  virtual void get_textMsg(StringMap& out) = 0;
  virtual bool get_timelineType(std::string& out) = 0;
  virtual bool get_title(std::string& out) = 0;
  virtual bool get_toUser(std::string& out) = 0;
  virtual void get_toUserList(StringList& out) = 0;
  virtual bool get_type(std::string& out) = 0;
  virtual bool get_u3dShareBitmap(std::string& out) = 0;
  virtual bool get_u3dshareThumb(std::string& out) = 0;
  virtual bool get_videoUrl(std::string& out) = 0;
  virtual bool get_showShareDialog() = 0;
  virtual void set_aLinkParams(const StringMap& value) = 0;
  virtual void set_altTextMsg(const StringMap& value) = 0;
  virtual void set_desc(const std::string& value) = 0;
  virtual void set_extJson(const std::string& value) = 0;
  virtual void set_failMsg(const std::string& value) = 0;
  virtual void set_iLinkParams(const StringMap& value) = 0;
  virtual void set_image(const std::string& value) = 0;
  virtual void set_link(const std::string& value) = 0;
  virtual void set_linkParams(const StringMap& value) = 0;
  virtual void set_linkTextMsg(const StringMap& value) = 0;
  virtual void set_musicUrl(const std::string& value) = 0;
  virtual void set_objectValue(const std::string& value) = 0;
  virtual void set_roomId(const std::string& value) = 0;
  virtual void set_roomToken(const std::string& value) = 0;
  virtual void set_scope(const std::string& value) = 0;
  virtual void set_shareChannel(std::int32_t value) = 0;
  virtual void set_showShareDialog(bool value) = 0;
  virtual void set_subTextMsg(const StringMap& value) = 0;
  virtual void set_templateId(const std::string& value) = 0;
  virtual void set_text(const std::string& value) = 0;
  virtual void set_textMsg(const StringMap& value) = 0;
  virtual void set_timelineType(const std::string& value) = 0;
  virtual void set_title(const std::string& value) = 0;
  virtual void set_toUser(const std::string& value) = 0;
  virtual void set_toUserList(const StringList& value) = 0;
  virtual void set_type(const std::string& value) = 0;
  virtual void set_u3dShareBitmap(const std::string& value) = 0;
  virtual void set_u3dshareThumb(const std::string& value) = 0;
  virtual void set_videoUrl(const std::string& value) = 0;
  virtual void set_shareData(const StringMap& value) = 0;
  virtual bool get_shareData(StringMap& out) = 0;
  virtual bool toString(std::string& out) = 0;
  virtual bool get_shareThumb(std::string& out) = 0;
  virtual bool get_shareBitmap(std::string& out) = 0;
  virtual void set_shareBitmap(const std::string& value) = 0;
  virtual void set_shareThumb(const std::string& value) = 0;
  virtual bool get_userName(std::string& out) = 0;
  virtual void set_userName(const std::string& value) = 0;
  virtual std::int32_t get_miniProgramType() = 0;
  virtual void set_miniProgramType(std::int32_t value) = 0;
  virtual bool get_path(std::string& out) = 0;
  virtual void set_path(const std::string& value) = 0;
  virtual bool get_tag(std::string& out) = 0;
  virtual void set_tag(const std::string& value) = 0;

 protected:
  ~ShareInfo() = default;
};

}  // namespace tarn::velora
