// `ShareInfo`: a share request. `new` reads the cached fields from the record, FlushShare writes them back. Accessors
// of other fields use the record itself.
#include "records/share_info.h"

#include "binding/set_constant.h"
#include "records/classes.h"
#include "records/fields.h"

namespace luavelora {

using tarn::velora::ShareInfo;

namespace {

// Returns a new cache with the record's value of a field.
template <class Container>
Cache<Container> Take(ShareInfo& record, void (ShareInfo::*get)(Container&)) {
  auto content = std::make_shared<Container>();
  (record.*get)(*content);
  return content;
}

// Sets a field to the content of its cache. `cache` is a copy, which keeps the content alive if the SDK calls a script.
template <class Container>
void WriteBack(ShareInfo& record, void (ShareInfo::*set)(const Container&), Cache<Container> cache) {
  (record.*set)(*cache);
}

}  // namespace

ShareInfoHolder::ShareInfoHolder(std::shared_ptr<ShareInfo> reference) : SharedRecordHolder(std::move(reference)) {
#define VELORA_CACHED_FIELD(name, Family, label) name = Take(*record, &ShareInfo::get_##name);
#include "platform/share_info.def"
}

const std::shared_ptr<ShareInfo>& FlushShare(ShareInfoHolder& holder) {
#define VELORA_CACHED_FIELD(name, Family, label) WriteBack(*holder.record, &ShareInfo::set_##name, holder.name);
#include "platform/share_info.def"
  return holder.record;
}

namespace {

Outcome ShareToString(lua_State* L) {
  return ToString<ShareInfo>(
      L, [](ShareInfoHolder& holder, std::string& out) { return FlushShare(holder)->toString(out); });
}

const luaL_Reg kFunctions[] = {
    Row<Collect<ShareInfo>>("__gc"),
    Row<ShareToString>("__tostring"),
#define VELORA_FIELD(name, Family) VELORA_GETTER(ShareInfo, name, Family), VELORA_SETTER(ShareInfo, name, Family),
#define VELORA_CACHED_FIELD(name, Family, label) VELORA_CACHE_ACCESSORS(ShareInfo, name, label),
#include "platform/share_info.def"
    {nullptr, nullptr},
};

}  // namespace

void RegisterShareInfo(lua_State* L) {
  RegisterClass<ShareInfo>(L, kFunctions, Entry<NewWithOptionalString<ShareInfo>>);
#define VELORA_SHARE_CONSTANT(name) SetConstant(L, "SHARE_" #name, ShareInfo::name);
#include "platform/share_constants.def"
}

}  // namespace luavelora
