// Notifications, channels, views, QR codes, recording, voice and analytics.
#pragma once

#include "wrappers/row.h"

namespace luavelora {

Outcome SetFloatBtnVisible(lua_State* L);
Outcome SendPushNotification(lua_State* L);
Outcome CreateQRCode(lua_State* L);
Outcome PushGameVoice(lua_State* L);

inline constexpr luaL_Reg kServiceWrappers[] = {
    VELORA_WRAPPER(zvOpenNearby),
    VELORA_WRAPPER(zvGetUsePushNotification),
    VELORA_WRAPPER(zvConnectToChannel),
    VELORA_WRAPPER(zvDisConnectFromChannel),
    VELORA_WRAPPER(zvShowConversation),
    VELORA_WRAPPER(zvShowFAQs),
    VELORA_WRAPPER(zvCCStartService),
    VELORA_WRAPPER(zvCCStopService),
    VELORA_WRAPPER(zvFlushCustomEvents),
    VELORA_WRAPPER(zvGetAnnouncementInfo),
    VELORA_WRAPPER(zvCloseWebView),
    VELORA_WRAPPER(zvCloseFlash),
    VELORA_WRAPPER(zvOpenVespera),
    VELORA_WRAPPER(zvHasNotification),
    VELORA_WRAPPER(zvHasChannelConnected),
    VELORA_WRAPPER(isCCRecording),
    VELORA_WRAPPER(isCCRecordMic),
    VELORA_WRAPPER(getCCPerformance),
    VELORA_WRAPPER(getCCWindowState),
    VELORA_WRAPPER(zvGetChannelID),
    VELORA_WRAPPER(zvShowWeb),
    VELORA_WRAPPER(zvOpenWebView),
    VELORA_WRAPPER(zvCollectEvent),
    VELORA_WRAPPER(zvSendLocalNotification),
    VELORA_WRAPPER(zvSetZone),
    VELORA_WRAPPER(zvSetUserIdentifier),
    VELORA_WRAPPER(zvScannerQRCode),
    VELORA_WRAPPER(zvTrackCustomEvent),
    VELORA_WRAPPER(zvShowBoard),
    VELORA_WRAPPER(zvPresentQRCodeScanner),
    VELORA_WRAPPER(zvSendProfile),
    VELORA_WRAPPER(zvCancelLocalNotification),
    VELORA_WRAPPER(zvSelectChannelOption),
    VELORA_WRAPPER(zvVerifyMobile),
    VELORA_WRAPPER(zvSetUsePushNotification),
    VELORA_WRAPPER(zvGetNotice),
    VELORA_WRAPPER(zvShowCompactView),
    {"zvSetFloatBtnVisible", Entry<SetFloatBtnVisible>},
    VELORA_WRAPPER(zvShowRewardView),
    {"zvSendPushNotification", Entry<SendPushNotification>},
    {"zvCreateQRCode", Entry<CreateQRCode>},
    {"zvPushGameVoice", Entry<PushGameVoice>},
};

}  // namespace luavelora
