// `AccountInfo`: one account of the social graph.
#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::AccountInfo;

const luaL_Reg kFunctions[] = {
    Row<Collect<AccountInfo>>("__gc"),
    Row<RecordToString<AccountInfo>>("__tostring"),
#define VELORA_FIELD(name, Family) VELORA_GETTER(AccountInfo, name, Family), VELORA_SETTER(AccountInfo, name, Family),
#include "platform/account_info.def"
    {nullptr, nullptr},
};

}  // namespace

void RegisterAccountInfo(lua_State* L) {
  RegisterClass<AccountInfo>(L, kFunctions, Entry<NewWithOptionalString<AccountInfo>>);
}

}  // namespace luavelora
