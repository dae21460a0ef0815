// The names under which SetAnswer knows the operations.
#include <algorithm>
#include <iterator>
#include <string_view>

#include "offline/calls.h"

namespace tarn::velora::offline {
namespace {

constexpr std::string_view kOperations[] = {
    // Start-up, login and account.
    "zvInit", "zvLogin", "zvLogout", "zvSwitchAccount", "zvOpenManager", "zvGameLoginSuccess", "zvUpLoadUserInfo",
    "zvDoSdkRealNameRegister", "zvGuestBind", "exitApp", "zvOpenExitView", "zvOpenPauseView", "isInit", "hasLogin",
    "zvAntiAddiction", "setJFSauthWithKey",
    // Channel and device identifiers.
    "getChannel", "getAppChannel", "getPlatform", "getAuthTypeName", "getUdid", "getChannelByImsi",
    "getChannelByImsiEx", "getCCTypeByImsi", "getSDKVersion",
    // Player information, properties and features.
    "getUserInfo", "setUserInfo", "getPropStr", "setPropStr", "getPropInt", "setPropInt", "isBinded", "zvHasPlatform",
    "hasFeature",
    // Free-form commands and options.
    "zvExtendFunc", "zvvGenericFunctionCall", "zvCallbackSuccess", "zvCallbackFail", "zvUpdateApi", "zvLumoSetOption",
    "setCmdLineParameter", "getCmdLineParameter", "zvJFLog",
    // Payment.
    "zvQuerySkuDetails", "zvCheckOrder", "zvConsume", "zvVerifyOrder", "zvPrePay", "zvQueryInventory",
    "zvGetCheckedOrders", "zvRemoveCheckedOrders", "getFFChannelByPid", "DRPF",
    // Friends, ranks, sharing.
    "zvQueryFriendList", "zvQueryAvailablesInvitees", "zvQueryMyAccount", "zvQueryFriendListInGame",
    "zvQueryInviterList", "zvIsDarenUpdated", "zvMoreGame", "zvDisplayAchievement", "zvApplyFriend",
    "zvDisplayLeaderboard", "zvInviteFriendList", "zvUpdateAchievement", "zvUpdateEvent", "zvUpdateRank",
    "zvDeleteInviters", "zvDisplayQuests", "zvQueryRank", "zvShare", "zvCheckArgs", "getLastShareMessage",
    // Push and local notifications.
    "zvGetUsePushNotification", "zvSetUsePushNotification", "zvSendPushNotification", "zvSendLocalNotification",
    "zvCancelLocalNotification", "zvHasNotification",
    // Channels and zones.
    "zvConnectToChannel", "zvDisConnectFromChannel", "zvSelectChannelOption", "zvHasChannelConnected", "zvGetChannelID",
    "zvSetZone",
    // Views.
    "zvOpenNearby", "zvOpenVespera", "zvCloseFlash", "zvShowConversation", "zvShowFAQs", "zvShowWeb", "zvOpenWebView",
    "zvCloseWebView", "zvShowBoard", "zvShowCompactView", "zvSetFloatBtnVisible", "zvShowRewardView", "zvGetNotice",
    "zvGetAnnouncementInfo",
    // QR codes.
    "zvCreateQRCode", "zvScannerQRCode", "zvPresentQRCodeScanner",
    // Recording, voice, analytics, verification.
    "zvCCStartService", "zvCCStopService", "isCCRecording", "isCCRecordMic", "getCCPerformance", "getCCWindowState",
    "zvPushGameVoice", "zvCollectEvent", "zvTrackCustomEvent", "zvFlushCustomEvents", "zvSendProfile",
    "zvSetUserIdentifier", "zvVerifyMobile",
    // Downloads.
    "init", "extendFunc", "disableDownloadFinish2", "query", "getDownloadSDKVersion", "getOrbitSessionId",
    "addSyncDownloadHandler", "removeSyncDownloadHandler", "enableAsyncEvent",
    // Records.
    "OrderInfo.New", "OrderInfo.getProductList", "OrderInfo.getProductType", "OrderInfo.hasProduct",
    "OrderInfo.obj2Json", "OrderInfo.produceCartInfo", "OrderInfo.regProduct", "OrderInfo.setProductType",
    "OrderInfo.toString", "AccountInfo.New", "AccountInfo.toString", "QueryRankInfo.New", "QueryRankInfo.toString",
    "ShareInfo.New", "ShareInfo.toString", "SkuDetailsInfo.New", "SkuDetailsInfo.toString", "ProductInfo.toString"};

// Records' getters and setters.
constexpr std::string_view kAccessors[] = {
#define VELORA_FIELD_READ_ONLY(name, family) RECORD_CLASS ".get_" #name,
#define VELORA_FIELD(name, family) RECORD_CLASS ".get_" #name, RECORD_CLASS ".set_" #name,
#define RECORD_CLASS "OrderInfo"
#include "platform/order_info.def"
#undef RECORD_CLASS
#define RECORD_CLASS "AccountInfo"
#include "platform/account_info.def"
#undef RECORD_CLASS
#define RECORD_CLASS "QueryRankInfo"
#include "platform/query_rank_info.def"
#undef RECORD_CLASS
#define RECORD_CLASS "ShareInfo"
#include "platform/share_info.def"
#undef RECORD_CLASS
#define RECORD_CLASS "SkuDetailsInfo"
#include "platform/sku_details_info.def"
#undef RECORD_CLASS
#define RECORD_CLASS "PadRecord"
#include "platform/pad_record.def"
#undef RECORD_CLASS
#undef VELORA_FIELD
#undef VELORA_FIELD_READ_ONLY
};

}  // namespace

bool IsOperation(std::string_view name) {
  const auto isIn = [name](const auto& names) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
  };
  return isIn(kOperations) || isIn(kAccessors);
}

}  // namespace tarn::velora::offline
