// Store items, orders and products.
#pragma once

#include "wrappers/row.h"

namespace luavelora {

Outcome QuerySkuDetails(lua_State* L);
Outcome GetCheckedOrders(lua_State* L);

inline constexpr luaL_Reg kPaymentWrappers[] = {
    {"zvQuerySkuDetails", Entry<QuerySkuDetails>},
    VELORA_WRAPPER(zvCheckOrder),
    VELORA_WRAPPER(zvConsume),
    VELORA_WRAPPER(zvVerifyOrder),
    VELORA_WRAPPER(zvPrePay),
    VELORA_WRAPPER(zvQueryInventory),
    {"zvGetCheckedOrders", Entry<GetCheckedOrders>},
    VELORA_WRAPPER(zvRemoveCheckedOrders),
    VELORA_WRAPPER(getFFChannelByPid),
    VELORA_WRAPPER(DRPF),
};

}  // namespace luavelora
