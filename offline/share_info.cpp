// The runtime's share requests.
#include "platform/share_info.h"

#include "offline/record.h"
#include "offline/state.h"

namespace tarn::velora {
namespace offline {
namespace {

class ShareRequest final : public ShareInfo, public Record {
 public:
  explicit ShareRequest(std::string arguments) : Record("ShareInfo", std::move(arguments)) {}

#define RECORD_CLASS "ShareInfo"
#define RECORD_FIELDS "platform/share_info.def"
#include "offline/record_fields.inc"

  bool toString(std::string& out) override { return TextForm("ShareInfo.toString", *this, out); }
};

std::shared_ptr<ShareInfo> MakeShare(std::string arguments) {
  const auto share = CreateRecord<ShareRequest>("ShareInfo.New", std::move(arguments));
  if (share != nullptr) Fill(*share, Get(&State::newShare));
  return share;
}

}  // namespace

void SetNewShare(const Fields& fields) {
  MakeFilled<ShareRequest>(fields);  // throws if they do not fit
  LockedState()->newShare = fields;
}

}  // namespace offline

std::shared_ptr<ShareInfo> ShareInfo::New() {
  offline::Call("ShareInfo.New");
  return offline::MakeShare("");
}

std::shared_ptr<ShareInfo> ShareInfo::New(const std::string& text) {
  offline::Call("ShareInfo.New", text);
  return offline::MakeShare(offline::FormatArguments(text));
}

}  // namespace tarn::velora
