// Start-up, login, account, properties, identifiers, commands and options.
#pragma once

#include "wrappers/row.h"

namespace luavelora {

Outcome HasFeature(lua_State* L);
Outcome GetPropStr(lua_State* L);
Outcome LumoSetOption(lua_State* L);
Outcome SetCmdLineParameter(lua_State* L);

inline constexpr luaL_Reg kLifecycleWrappers[] = {
    VELORA_WRAPPER(zvInit),
    VELORA_WRAPPER(zvLogin),
    VELORA_WRAPPER(zvLogout),
    VELORA_WRAPPER(zvSwitchAccount),
    VELORA_WRAPPER(zvOpenManager),
    VELORA_WRAPPER(zvGameLoginSuccess),
    VELORA_WRAPPER(zvUpLoadUserInfo),
    VELORA_WRAPPER(zvDoSdkRealNameRegister),
    VELORA_WRAPPER(zvGuestBind),
    VELORA_WRAPPER(exitApp),
    VELORA_WRAPPER(zvOpenExitView),
    VELORA_WRAPPER(zvOpenPauseView),
    VELORA_WRAPPER(isInit),
    VELORA_WRAPPER(hasLogin),
    VELORA_WRAPPER(getChannel),
    VELORA_WRAPPER(getAppChannel),
    VELORA_WRAPPER(getPlatform),
    VELORA_WRAPPER(getAuthTypeName),
    VELORA_WRAPPER(getUdid),
    VELORA_WRAPPER(getChannelByImsi),
    VELORA_WRAPPER(getChannelByImsiEx),
    VELORA_WRAPPER(getCCTypeByImsi),
    VELORA_WRAPPER(getUserInfo),
    VELORA_WRAPPER(getSDKVersion),
    VELORA_WRAPPER(isBinded),
    VELORA_WRAPPER(zvHasPlatform),
    {"hasFeature", Entry<HasFeature>},
    VELORA_WRAPPER(zvAntiAddiction),
    VELORA_WRAPPER(zvExtendFunc),
    VELORA_WRAPPER(zvvGenericFunctionCall),
    VELORA_WRAPPER(zvCallbackSuccess),
    VELORA_WRAPPER(zvCallbackFail),
    VELORA_WRAPPER(setUserInfo),
    VELORA_WRAPPER(setPropStr),
    VELORA_WRAPPER(zvUpdateApi),
    VELORA_WRAPPER(setPropInt),
    VELORA_WRAPPER(getPropInt),
    {"getPropStr", Entry<GetPropStr>},
    VELORA_WRAPPER(setJFSauthWithKey),
    {"zvLumoSetOption", Entry<LumoSetOption>},
    {"setCmdLineParameter", Entry<SetCmdLineParameter>},
    VELORA_WRAPPER(getCmdLineParameter),
    VELORA_WRAPPER(zvJFLog),
};

}  // namespace luavelora
