// What all classes have in common at the end of a Lua state.
#include "records/classes.h"

#include "records/convention.h"

namespace luavelora {
namespace {

template <class... Records>
void Unregister(lua_State* L) {
  for (const char* name : {ClassOf<Records>::kMetatable...}) {
    lua_pushnil(L);
    lua_setfield(L, LUA_REGISTRYINDEX, name);
  }
}

}  // namespace

void UnregisterClasses(lua_State* L) {
  using namespace tarn::velora;
  Unregister<ProductInfo, OrderInfo, QueryRankInfo, ShareInfo, AccountInfo, SkuDetailsInfo, PadRecord>(L);
}

}  // namespace luavelora
