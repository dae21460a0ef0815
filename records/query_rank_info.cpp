// `QueryRankInfo`: which ranking to ask for, over whom, how many entries.
#include "platform/query_rank_info.h"

#include "binding/set_constant.h"
#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::QueryRankInfo;

Outcome New(lua_State* L) {
  return NewWithOptionalText<QueryRankInfo>(L, [L](const auto& query) { return GiveRecord(L, query); });
}

const luaL_Reg kFunctions[] = {
    {"new", Entry<New>},
    {"__gc", Entry<Collect<QueryRankInfo>>},
    {"__tostring", Entry<RecordToString<QueryRankInfo>>},
#define VELORA_FIELD(name, Family) \
  VELORA_GETTER(QueryRankInfo, name, Family), VELORA_SETTER(QueryRankInfo, name, Family),
#include "platform/query_rank_info.def"
#undef VELORA_FIELD
    {nullptr, nullptr},
};

}  // namespace

void RegisterQueryRankInfo(lua_State* L) {
  RegisterClass<QueryRankInfo>(L, {kFunctions});
  SetConstant(L, "QUERY_RANK_TYPE_SCORE", QueryRankInfo::QUERY_RANK_TYPE_SCORE);
  SetConstant(L, "QUERY_RANK_TYPE_GRADE", QueryRankInfo::QUERY_RANK_TYPE_GRADE);
  SetConstant(L, "QUERY_RANK_SCOPE_ALL", QueryRankInfo::QUERY_RANK_SCOPE_ALL);
  SetConstant(L, "QUERY_RANK_SCOPE_FRIEND", QueryRankInfo::QUERY_RANK_SCOPE_FRIEND);
}

}  // namespace luavelora
