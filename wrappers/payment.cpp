// Payment wrappers with rules of their own.
#include "records/push.h"
#include "wrappers/wrappers.h"

namespace luavelora::wrappers {

Outcome zvQuerySkuDetails(lua_State* L) {
  if (!lua_isstring(L, 1) || !lua_istable(L, 2)) return Refusal();
  const char* type = TextArgument(L, 1);
  tarn::velora::StringList productIds;
  if (const char* error = ReadStrictStringList(L, 2, productIds, "SkuDetails need string list"))
    return Outcome::Error(error);
  tarn::velora::zvQuerySkuDetails(type, productIds);
  return Outcome::Results(0);
}

Outcome zvGetCheckedOrders(lua_State* L) {
  std::vector<std::shared_ptr<tarn::velora::OrderInfo>> orders;
  tarn::velora::zvGetCheckedOrders(orders);
  ModuleState* state = ModuleStateOf(L);
  if (orders.empty() || state == nullptr) return Outcome::Results(0);
  return PushProtected(L, [&orders, state](lua_State* inner) { PushRecordList(inner, *state, orders); });
}

}  // namespace luavelora::wrappers
