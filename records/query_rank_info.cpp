// `QueryRankInfo`: the ranking to query, its scope and the number of entries.
#include "binding/set_constant.h"
#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::QueryRankInfo;

const luaL_Reg kFunctions[] = {
    Row<Collect<QueryRankInfo>>("__gc"),
    Row<RecordToString<QueryRankInfo>>("__tostring"),
#define VELORA_FIELD(name, Family) \
  VELORA_GETTER(QueryRankInfo, name, Family), VELORA_SETTER(QueryRankInfo, name, Family),
#include "platform/query_rank_info.def"
    {nullptr, nullptr},
};

}  // namespace

void RegisterQueryRankInfo(lua_State* L) {
  RegisterClass<QueryRankInfo>(L, kFunctions, Entry<NewWithOptionalString<QueryRankInfo>>);
#define VELORA_QUERY_RANK_CONSTANT(name) SetConstant(L, #name, QueryRankInfo::name);
#include "platform/query_rank_constants.def"
}

}  // namespace luavelora
