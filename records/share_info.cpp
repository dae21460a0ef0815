// `ShareInfo`: a share request. Scalar fields and shareData go straight to the record; the seven text maps and the
// recipients are cached in the holder, taken from the record at `new` and written back by every flush.
#include "records/share_info.h"

#include "binding/set_constant.h"
#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {

using tarn::velora::ShareInfo;
using tarn::velora::StringList;
using tarn::velora::StringMap;

namespace {

// Writes one cache. A copy of the pointer keeps the content alive: the SDK may call back into scripts.
template <class Container>
void WriteBack(ShareInfo& record, void (ShareInfo::*set)(const Container&), Cache<Container> cache) {
  (record.*set)(*cache);
}

template <class Container>
Cache<Container> Take(ShareInfo& record, void (ShareInfo::*get)(Container&)) {
  auto content = std::make_shared<Container>();
  (record.*get)(*content);
  return content;
}

}  // namespace

const std::shared_ptr<ShareInfo>& FlushShare(ShareInfoHolder& holder) {
  ShareInfo& record = **holder.record;
  WriteBack(record, &ShareInfo::set_aLinkParams, holder.aLinkParams);
  WriteBack(record, &ShareInfo::set_altTextMsg, holder.altTextMsg);
  WriteBack(record, &ShareInfo::set_iLinkParams, holder.iLinkParams);
  WriteBack(record, &ShareInfo::set_linkParams, holder.linkParams);
  WriteBack(record, &ShareInfo::set_linkTextMsg, holder.linkTextMsg);
  WriteBack(record, &ShareInfo::set_subTextMsg, holder.subTextMsg);
  WriteBack(record, &ShareInfo::set_textMsg, holder.textMsg);
  WriteBack(record, &ShareInfo::set_toUserList, holder.toUserList);
  return *holder.record;
}

namespace {

// A holder of `reference` with its caches filled from the record.
FreshHolder Bind(const std::shared_ptr<ShareInfo>& reference) {
  auto* holder = new ShareInfoHolder(reference);
  FreshHolder owner(holder);
  holder->aLinkParams = Take(*reference, &ShareInfo::get_aLinkParams);
  holder->altTextMsg = Take(*reference, &ShareInfo::get_altTextMsg);
  holder->iLinkParams = Take(*reference, &ShareInfo::get_iLinkParams);
  holder->linkParams = Take(*reference, &ShareInfo::get_linkParams);
  holder->linkTextMsg = Take(*reference, &ShareInfo::get_linkTextMsg);
  holder->subTextMsg = Take(*reference, &ShareInfo::get_subTextMsg);
  holder->textMsg = Take(*reference, &ShareInfo::get_textMsg);
  holder->toUserList = Take(*reference, &ShareInfo::get_toUserList);
  return owner;
}

Outcome New(lua_State* L) {
  return NewWithOptionalText<ShareInfo>(L, [L](const std::shared_ptr<ShareInfo>& share) {
    return share ? GiveHolder<ShareInfo>(L, Bind(share)) : Outcome::Error(ClassOf<ShareInfo>::kUnsupported);
  });
}

Outcome ToString(lua_State* L) {
  return TextForm<ShareInfo>(
      L, [](ShareInfoHolder& holder, std::string& out) { return FlushShare(holder)->toString(out); });
}

template <auto cache, const char* error>
Outcome SetCachedList(lua_State* L) {
  if (Self<ShareInfo>(L) == nullptr) return Refusal();
  if (!lua_istable(L, 2)) return Outcome::Error(error);
  std::int32_t length = 0;
  if (const char* tooLong = ClaimedLength(L, 2, length)) return Outcome::Error(tooLong);
  // Asking for the length may have run script code: the object may be finished by now.
  auto* holder = Self<ShareInfo>(L);
  if (holder != nullptr) holder->*cache = std::make_shared<const StringList>(ReadStringList(L, 2, length));
  return Outcome::Results(0);
}

Outcome SetShareData(lua_State* L) {
  auto* holder = Self<ShareInfo>(L);
  if (holder == nullptr) return Refusal();
  if (!lua_istable(L, 2)) return Outcome::Error("ptrHashMapmust be table");
  CallOnRecord<&ShareInfo::set_shareData>(*holder, ReadStringMap(L, 2));
  return Outcome::Results(0);
}

constexpr char kError_aLinkParams[] = "self->m_dictALinkParamsmust be table";
constexpr char kError_altTextMsg[] = "self->m_dictAltTextMsgmust be table";
constexpr char kError_iLinkParams[] = "self->m_dictILinkParamsmust be table";
constexpr char kError_linkParams[] = "self->m_dictLinkParamsmust be table";
constexpr char kError_linkTextMsg[] = "self->m_dictLinkTextMsgmust be table";
constexpr char kError_subTextMsg[] = "self->m_dictSubTextMsgmust be table";
constexpr char kError_textMsg[] = "self->m_dictTextMsgmust be table";
constexpr char kError_toUserList[] = "self->m_listToUserListmust be table";

// What a row's family stands for in this class.
#define VELORA_SHARE_String(name) VELORA_GETTER(ShareInfo, name, String), VELORA_SETTER(ShareInfo, name, String),
#define VELORA_SHARE_Int(name) VELORA_GETTER(ShareInfo, name, Int), VELORA_SETTER(ShareInfo, name, Int),
#define VELORA_SHARE_Bool(name) VELORA_GETTER(ShareInfo, name, Bool), VELORA_SETTER(ShareInfo, name, Bool),
#define VELORA_SHARE_CachedMap(name)                                                 \
  {"get_" #name, Entry<GetCache<ShareInfo, &ShareInfoHolder::name, PushStringMap>>}, \
      {"set_" #name, Entry<SetCachedMap<ShareInfo, &ShareInfoHolder::name, ReadStringMap, kError_##name>>},
#define VELORA_SHARE_CachedList(name)                                                 \
  {"get_" #name, Entry<GetCache<ShareInfo, &ShareInfoHolder::name, PushStringList>>}, \
      {"set_" #name, Entry<SetCachedList<&ShareInfoHolder::name, kError_##name>>},
#define VELORA_SHARE_RecordMap(name) VELORA_GETTER(ShareInfo, name, StringMap), {"set_" #name, Entry<SetShareData>},

const luaL_Reg kFunctions[] = {
    {"new", Entry<New>},
    {"__gc", Entry<Collect<ShareInfo>>},
    {"__tostring", Entry<ToString>},
#define VELORA_FIELD(name, Family) VELORA_SHARE_##Family(name)
#include "platform/share_info.def"
#undef VELORA_FIELD
    {nullptr, nullptr},
};

}  // namespace

void RegisterShareInfo(lua_State* L) {
  RegisterClass<ShareInfo>(L, {kFunctions});
#define VELORA_SHARE_CONSTANT(name) SetConstant(L, "SHARE_" #name, ShareInfo::name);
#include "platform/share_constants.def"
#undef VELORA_SHARE_CONSTANT
}

}  // namespace luavelora
