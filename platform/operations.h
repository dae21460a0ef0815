// The SDK's operations. All are called on the thread of Lua and return at once; results that take longer arrive as
// events. Reference and pointer arguments are valid only during the call; a shared reference may be copied and kept. An
// operation that fills a string `out` returns whether there is one. Exceptions derive from std::exception.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/import.h"
#include "platform/types.h"

namespace tarn::velora {

class OrderInfo;
class QueryRankInfo;
class ShareInfo;

// The id of the module's log channel. InitLuaVelora sets it; each log call of the module reads it.
extern VELORA_SDK_DATA std::uint32_t LogChannel;

// Start-up, login and account.
VELORA_SDK_API void zvInit();
VELORA_SDK_API void zvLogin();
VELORA_SDK_API void zvLogout();
VELORA_SDK_API void zvSwitchAccount();
VELORA_SDK_API void zvOpenManager();
VELORA_SDK_API void zvGameLoginSuccess();
VELORA_SDK_API void zvUpLoadUserInfo();
VELORA_SDK_API void zvDoSdkRealNameRegister();
VELORA_SDK_API void zvGuestBind();
VELORA_SDK_API void exitApp();
VELORA_SDK_API void zvOpenExitView();
VELORA_SDK_API void zvOpenPauseView();
VELORA_SDK_API bool isInit();
VELORA_SDK_API bool hasLogin();
VELORA_SDK_API void zvAntiAddiction(const std::string& text);
VELORA_SDK_API void setJFSauthWithKey(const std::string& key, const std::string& value, bool flag);

// Channel and device identifiers.
VELORA_SDK_API bool getChannel(std::string& out);
VELORA_SDK_API bool getAppChannel(std::string& out);
VELORA_SDK_API bool getPlatform(std::string& out);
VELORA_SDK_API bool getAuthTypeName(std::string& out);
VELORA_SDK_API bool getUdid(std::string& out);
VELORA_SDK_API bool getChannelByImsi(std::string& out);
VELORA_SDK_API bool getChannelByImsiEx(std::string& out);
VELORA_SDK_API bool getCCTypeByImsi(std::string& out);
VELORA_SDK_API bool getSDKVersion(const std::string& text, std::string& out);

// Player information, properties and features.
VELORA_SDK_API bool getUserInfo(const std::string& key, std::string& out);
VELORA_SDK_API void setUserInfo(const std::string& key, const std::string& value);
VELORA_SDK_API bool getPropStr(const std::string& name, std::string& out);
VELORA_SDK_API bool getPropStr(const std::string& name, const std::string& second, std::string& out);
VELORA_SDK_API void setPropStr(const std::string& name, const std::string& value);
VELORA_SDK_API std::int32_t getPropInt(const std::string& name, std::int32_t number);
VELORA_SDK_API void setPropInt(const std::string& name, std::int32_t value);
VELORA_SDK_API bool isBinded(const std::string& text);
VELORA_SDK_API bool zvHasPlatform(const std::string& text);
VELORA_SDK_API bool hasFeature(const std::string& feature);

// Free-form commands and options. The type of an option's value follows from its name.
VELORA_SDK_API void zvExtendFunc(const std::string& text);
VELORA_SDK_API void zvvGenericFunctionCall(const std::string& text);
VELORA_SDK_API void zvCallbackSuccess(const std::string& text);
VELORA_SDK_API void zvCallbackFail(const std::string& text);
VELORA_SDK_API void zvUpdateApi(const std::string& first, const std::string& second);
VELORA_SDK_API void zvLumoSetOption(const char* name, const void* value);
VELORA_SDK_API void setCmdLineParameter(const char* text);  // null clears it
VELORA_SDK_API const char* getCmdLineParameter();           // may be null
VELORA_SDK_API void zvJFLog(const char* text);

// Payment.
VELORA_SDK_API void zvQuerySkuDetails(const std::string& type, const StringList& productIds);
VELORA_SDK_API void zvCheckOrder(const std::shared_ptr<OrderInfo>& order);
VELORA_SDK_API void zvConsume(const std::shared_ptr<OrderInfo>& order);
VELORA_SDK_API void zvVerifyOrder();
VELORA_SDK_API void zvPrePay();
VELORA_SDK_API void zvQueryInventory();
VELORA_SDK_API void zvGetCheckedOrders(std::vector<std::shared_ptr<OrderInfo>>& out);
VELORA_SDK_API void zvRemoveCheckedOrders(const std::string& orderId);
VELORA_SDK_API bool getFFChannelByPid(const std::string& productId, std::string& out);
VELORA_SDK_API std::int32_t DRPF(const std::string& text);

// Friends, ranks, sharing.
VELORA_SDK_API void zvQueryFriendList();
VELORA_SDK_API void zvQueryAvailablesInvitees();
VELORA_SDK_API void zvQueryMyAccount();
VELORA_SDK_API void zvQueryFriendListInGame();
VELORA_SDK_API void zvQueryInviterList();
VELORA_SDK_API void zvIsDarenUpdated();
VELORA_SDK_API void zvMoreGame();
VELORA_SDK_API void zvDisplayAchievement();
VELORA_SDK_API void zvApplyFriend(const std::string& accountId);
VELORA_SDK_API void zvDisplayLeaderboard(const std::string& name);
VELORA_SDK_API void zvInviteFriendList(const std::string& first, const std::string& second);
VELORA_SDK_API void zvUpdateAchievement(const std::string& name, std::int32_t progress);
VELORA_SDK_API void zvUpdateEvent(const std::string& name, std::int32_t count);
VELORA_SDK_API void zvUpdateRank(const std::string& name, double score);
VELORA_SDK_API void zvDeleteInviters(const StringList& accountIds);
VELORA_SDK_API void zvDisplayQuests(const std::int32_t* quests, std::size_t count);  // null with a count of 0
VELORA_SDK_API void zvQueryRank(const std::shared_ptr<QueryRankInfo>& query);
VELORA_SDK_API void zvShare(const std::shared_ptr<ShareInfo>& share);
VELORA_SDK_API bool zvCheckArgs(const std::shared_ptr<ShareInfo>& share);
VELORA_SDK_API bool getLastShareMessage(std::string& out);

// Push and local notifications.
VELORA_SDK_API void zvGetUsePushNotification();
VELORA_SDK_API void zvSetUsePushNotification(bool enabled);
VELORA_SDK_API void zvSendPushNotification(const std::string& text, const StringList& accountIds);
VELORA_SDK_API void zvSendLocalNotification(const std::string& text);
VELORA_SDK_API void zvCancelLocalNotification(std::int32_t id);
VELORA_SDK_API bool zvHasNotification();

// Channels and zones.
VELORA_SDK_API void zvConnectToChannel();
VELORA_SDK_API void zvDisConnectFromChannel();
VELORA_SDK_API void zvSelectChannelOption(std::int32_t option);
VELORA_SDK_API bool zvHasChannelConnected();
VELORA_SDK_API bool zvGetChannelID(std::string& out);
VELORA_SDK_API void zvSetZone(const std::string& zone);

// Views.
VELORA_SDK_API void zvOpenNearby();
VELORA_SDK_API void zvOpenVespera();
VELORA_SDK_API void zvCloseFlash();
VELORA_SDK_API void zvShowConversation();
VELORA_SDK_API void zvShowFAQs();
VELORA_SDK_API void zvShowWeb(const std::string& url);
VELORA_SDK_API void zvOpenWebView(const std::string& url);
VELORA_SDK_API void zvCloseWebView();
VELORA_SDK_API void zvShowBoard(const std::string& first, const std::string& second, const std::string& third);
VELORA_SDK_API void zvShowCompactView(bool shown);
VELORA_SDK_API void zvSetFloatBtnVisible(bool visible);
VELORA_SDK_API void zvShowRewardView(const StringList& rewards);
VELORA_SDK_API void zvGetNotice(bool flag);
VELORA_SDK_API void zvGetAnnouncementInfo();

// QR codes.
VELORA_SDK_API void zvCreateQRCode(const std::string& text, std::int32_t width, std::int32_t height,
                                   const std::string& path);
VELORA_SDK_API void zvCreateQRCode(const std::string& text, std::int32_t width, std::int32_t height,
                                   const std::string& path, const std::string& icon);
VELORA_SDK_API void zvScannerQRCode(const std::string& text);
VELORA_SDK_API void zvPresentQRCodeScanner(const std::string& text, std::int32_t number);

// Recording, voice, analytics, verification.
VELORA_SDK_API void zvCCStartService();
VELORA_SDK_API void zvCCStopService();
VELORA_SDK_API bool isCCRecording();
VELORA_SDK_API bool isCCRecordMic();
VELORA_SDK_API std::int32_t getCCPerformance();
VELORA_SDK_API std::int32_t getCCWindowState();
VELORA_SDK_API void zvPushGameVoice(const char* data, std::size_t size, std::uint32_t sampleRate,
                                    std::uint32_t bitsPerSample, std::uint32_t channels);
VELORA_SDK_API void zvCollectEvent(const std::string& text);
VELORA_SDK_API void zvTrackCustomEvent(const std::string& name, const std::string& value);
VELORA_SDK_API void zvFlushCustomEvents();
VELORA_SDK_API void zvSendProfile(const std::string& text, bool flag);
VELORA_SDK_API void zvSetUserIdentifier(const std::string& text);
VELORA_SDK_API void zvVerifyMobile(std::int32_t number);

}  // namespace tarn::velora
