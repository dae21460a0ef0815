// The payment wrappers whose rules do not follow from their operation's type.
#include "wrappers/payment.h"

namespace luavelora {

Outcome QuerySkuDetails(lua_State* L) {
  if (!lua_isstring(L, 1) || !lua_istable(L, 2)) return Refusal();
  const char* type = TextArgument(L, 1);
  tarn::velora::StringList productIds;
  if (const char* error = ReadStrictStringList(L, 2, productIds, "SkuDetails need string list"))
    return Outcome::Error(error);
  tarn::velora::zvQuerySkuDetails(type, productIds);
  return Outcome::Results(0);
}

Outcome GetCheckedOrders(lua_State* L) {
  std::vector<std::shared_ptr<tarn::velora::OrderInfo>> orders;
  tarn::velora::zvGetCheckedOrders(orders);
  if (orders.empty()) return Outcome::Results(0);
  RecordPusher pusher;
  return PushProtected(L, [&](lua_State* state) { PushRecordList(state, pusher, orders); });
}

}  // namespace luavelora
