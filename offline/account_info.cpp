// The runtime's accounts of the social graph.
#include "platform/account_info.h"

#include "offline/record.h"

namespace tarn::velora {
namespace offline {
namespace {

class Account final : public AccountInfo, public Record {
 public:
  explicit Account(std::string arguments) : Record("AccountInfo", std::move(arguments)) {}

#define RECORD_CLASS "AccountInfo"
#define RECORD_FIELDS "platform/account_info.def"
#include "offline/record_fields.inc"

  bool toString(std::string& out) override { return TextForm("AccountInfo.toString", *this, out); }
};

}  // namespace

std::shared_ptr<AccountInfo> MakeAccount(const Fields& fields) { return MakeFilled<Account>(fields); }

}  // namespace offline

std::shared_ptr<AccountInfo> AccountInfo::New() {
  offline::Call("AccountInfo.New");
  return offline::CreateRecord<offline::Account>("AccountInfo.New", "");
}

std::shared_ptr<AccountInfo> AccountInfo::New(const std::string& text) {
  offline::Call("AccountInfo.New", text);
  return offline::CreateRecord<offline::Account>("AccountInfo.New", offline::FormatArguments(text));
}

}  // namespace tarn::velora
