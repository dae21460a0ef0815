// The runtime's share requests.
#include "platform/share_info.h"

#include "offline/record.h"

namespace tarn::velora {
namespace offline {
namespace {

class ShareRequest final : public ShareInfo, public Record {
 public:
  explicit ShareRequest(std::string madeWith) : Record("ShareInfo", std::move(madeWith)) {}

#define RECORD_CLASS "ShareInfo"
#define RECORD_FIELDS "platform/share_info.def"
#include "offline/record_fields.inc"

  bool toString(std::string& out) override { return GiveTextForm("ShareInfo.toString", *this, out); }
};

}  // namespace
}  // namespace offline

std::shared_ptr<ShareInfo> ShareInfo::New() {
  offline::Call("ShareInfo.New");
  return offline::Produce<offline::ShareRequest>("ShareInfo.New", "");
}

std::shared_ptr<ShareInfo> ShareInfo::New(const std::string& text) {
  offline::Call("ShareInfo.New", text);
  return offline::Produce<offline::ShareRequest>("ShareInfo.New", offline::Joined(text));
}

}  // namespace tarn::velora
