// The runtime's rank queries.
#include "platform/query_rank_info.h"

#include "offline/record.h"

namespace tarn::velora {
namespace offline {
namespace {

class RankQuery final : public QueryRankInfo, public Record {
 public:
  explicit RankQuery(std::string arguments) : Record("QueryRankInfo", std::move(arguments)) {}

#define RECORD_CLASS "QueryRankInfo"
#define RECORD_FIELDS "platform/query_rank_info.def"
#include "offline/record_fields.inc"

  bool toString(std::string& out) override { return TextForm("QueryRankInfo.toString", *this, out); }
};

}  // namespace
}  // namespace offline

std::shared_ptr<QueryRankInfo> QueryRankInfo::New() {
  offline::Call("QueryRankInfo.New");
  return offline::CreateRecord<offline::RankQuery>("QueryRankInfo.New", "");
}

std::shared_ptr<QueryRankInfo> QueryRankInfo::New(const std::string& text) {
  offline::Call("QueryRankInfo.New", text);
  return offline::CreateRecord<offline::RankQuery>("QueryRankInfo.New", offline::FormatArguments(text));
}

}  // namespace tarn::velora
