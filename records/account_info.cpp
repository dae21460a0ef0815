// `AccountInfo`: one account of the social graph.
#include "platform/account_info.h"

#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::AccountInfo;

Outcome New(lua_State* L) {
  return NewWithOptionalText<AccountInfo>(L, [L](const auto& account) { return GiveRecord(L, account); });
}

const luaL_Reg kFunctions[] = {
    {"new", Entry<New>},
    {"__gc", Entry<Collect<AccountInfo>>},
    {"__tostring", Entry<RecordToString<AccountInfo>>},
#define VELORA_FIELD(name, Family) VELORA_GETTER(AccountInfo, name, Family), VELORA_SETTER(AccountInfo, name, Family),
#include "platform/account_info.def"
#undef VELORA_FIELD
    {nullptr, nullptr},
};

}  // namespace

void RegisterAccountInfo(lua_State* L) { RegisterClass<AccountInfo>(L, {kFunctions}); }

}  // namespace luavelora
