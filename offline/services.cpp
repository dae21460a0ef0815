// Notifications, channels, views, QR codes, recording, analytics and verification.
#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"
#include "platform/const_prop.h"
#include "platform/operations.h"

namespace tarn::velora {

using namespace offline;

namespace {

constexpr std::int32_t kOk = 0;
constexpr std::int32_t kFailed = 1;
constexpr std::int32_t kScanFailed = 10;
constexpr std::int32_t kProtocolConfirmed = 0;
constexpr std::int32_t kProtocolAccepted = 1;
constexpr std::int32_t kProtocolRejected = 2;

// A view that opens, and stays until the script closes it.
void ReplyOpened(const char* operation) {
  const bool opened = GiveFlag(operation, true);
  Reply({opened ? MakeEvent<events::ShowViewOpened>() : MakeEvent<events::ShowViewFailed>()});
}

void ReplyClosed(const char* operation) {
  if (GiveFlag(operation, true)) Reply({MakeEvent<events::ShowViewClosed>()});
}

void ReplyQRCode(const char* operation, const std::string& path) {
  std::string file;
  if (!GiveOwnText(operation, path, file)) file.clear();
  Reply({MakeEvent<events::CreateQRCodeDone>(std::move(file))});
}

// The scanner reads the very text that it was started with.
void ReplyScan(const char* operation, const std::string& text) {
  std::string scanned;
  GiveOwnText(operation, text, scanned);
  const auto code = GiveCode(operation, kOk, kScanFailed);
  Reply({MakeEvent<events::CodeScannerFinish>(code, code == kOk ? std::move(scanned) : std::string())});
}

void ReplyNotice(const char* operation, const char* notice) {
  std::string text;
  if (GiveText(operation, notice, text)) Reply({MakeEvent<events::StartupGetNoticeMsgDone>(std::move(text))});
}

}  // namespace

void zvGetUsePushNotification() {
  Call(__func__);
  const bool enabled = LockedState()->pushEnabled;
  Reply({MakeEvent<events::PushGetUserPushFinished>(GiveFlag(__func__, enabled))});
}

void zvSetUsePushNotification(bool enabled) {
  Call(__func__, enabled);
  const bool done = GiveFlag(__func__, true);
  Reply({MakeEvent<events::PushSetUserPushFinished>(done)}, [done, enabled] {
    if (done) LockedState()->pushEnabled = enabled;
  });
}

void zvSendPushNotification(const std::string& text, const StringList& accountIds) {
  Call(__func__, text, accountIds);
  Reply({MakeEvent<events::PushSendPushNotificationFinished>(GiveFlag(__func__, true))});
}

void zvSendLocalNotification(const std::string& text) {
  Call(__func__, text);
  const auto code = GiveCode(__func__, kOk, kFailed);
  Reply({MakeEvent<events::PushSendLocalNotificationFinished>(code)}, [code] {
    if (code == kOk) LockedState()->notificationPending = true;
  });
}

void zvCancelLocalNotification(std::int32_t id) {
  Call(__func__, id);
  const bool done = GiveFlag(__func__, true);
  Reply({MakeEvent<events::CancelLocalPushFinished>(done)}, [done] {
    if (done) LockedState()->notificationPending = false;
  });
}

// Whether a local notification was sent and none cancelled since.
bool zvHasNotification() {
  Call(__func__);
  const bool pending = LockedState()->notificationPending;
  return GiveFlag(__func__, pending);
}

void zvConnectToChannel() {
  Call(__func__);
  const auto code = GiveCode(__func__, kOk, kFailed);
  Reply({MakeEvent<events::ConnectToChannelFinished>(code)}, [code] { LockedState()->channelConnected = code == kOk; });
}

void zvDisConnectFromChannel() {
  Call(__func__);
  const auto code = GiveCode(__func__, kOk, kFailed);
  Reply({MakeEvent<events::DisconnectToChannelFinished>(code)}, [code] {
    if (code == kOk) LockedState()->channelConnected = false;
  });
}

void zvSelectChannelOption(std::int32_t option) {
  Call(__func__, option);
  Reply({MakeEvent<events::SelectChannelOptionFinished>(GiveFlag(__func__, true))});
}

bool zvHasChannelConnected() {
  Call(__func__);
  const bool connected = LockedState()->channelConnected;
  return GiveFlag(__func__, connected);
}

bool zvGetChannelID(std::string& out) {
  Call(__func__);
  const bool connected = LockedState()->channelConnected;
  return GiveText(__func__, connected ? std::optional<std::string>("offline_channel_id") : std::nullopt, out);
}

void zvSetZone(const std::string& zone) { Call(__func__, zone); }

void zvOpenNearby() {
  Call(__func__);
  ReplyOpened(__func__);
}

void zvOpenVespera() {
  Call(__func__);
  ReplyOpened(__func__);
}

void zvShowConversation() {
  Call(__func__);
  ReplyOpened(__func__);
}

void zvShowFAQs() {
  Call(__func__);
  ReplyOpened(__func__);
}

void zvShowWeb(const std::string& url) {
  Call(__func__, url);
  ReplyOpened(__func__);
}

void zvOpenWebView(const std::string& url) {
  Call(__func__, url);
  ReplyOpened(__func__);
}

void zvShowBoard(const std::string& first, const std::string& second, const std::string& third) {
  Call(__func__, first, second, third);
  ReplyOpened(__func__);
}

void zvCloseWebView() {
  Call(__func__);
  ReplyClosed(__func__);
}

void zvCloseFlash() {
  Call(__func__);
  ReplyClosed(__func__);
}

// The reward is taken and the view closed at once.
void zvShowRewardView(const StringList& rewards) {
  Call(__func__, rewards);
  if (GiveFlag(__func__, true)) {
    Reply({MakeEvent<events::ShowViewOpened>(), MakeEvent<events::ShowViewRewarded>(),
           MakeEvent<events::ShowViewClosed>()});
  } else {
    Reply({MakeEvent<events::ShowViewFailed>()});
  }
}

// The agreement, where it is shown to be agreed to, is accepted.
void zvShowCompactView(bool shown) {
  Call(__func__, shown);
  const auto success = shown ? kProtocolAccepted : kProtocolConfirmed;
  Reply({MakeEvent<events::ProtocolFinish>(GiveCode(__func__, success, kProtocolRejected))});
}

void zvSetFloatBtnVisible(bool visible) { Call(__func__, visible); }

void zvGetNotice(bool flag) {
  Call(__func__, flag);
  ReplyNotice(__func__, "offline notice");
}

void zvGetAnnouncementInfo() {
  Call(__func__);
  ReplyNotice(__func__, "offline announcement");
}

// No picture is drawn: the event names the path, or no path where the answer is false.
void zvCreateQRCode(const std::string& text, std::int32_t width, std::int32_t height, const std::string& path) {
  Call(__func__, text, width, height, path);
  ReplyQRCode(__func__, path);
}

void zvCreateQRCode(const std::string& text, std::int32_t width, std::int32_t height, const std::string& path,
                    const std::string& icon) {
  Call(__func__, text, width, height, path, icon);
  ReplyQRCode(__func__, path);
}

void zvScannerQRCode(const std::string& text) {
  Call(__func__, text);
  ReplyScan(__func__, text);
}

void zvPresentQRCodeScanner(const std::string& text, std::int32_t number) {
  Call(__func__, text, number);
  ReplyScan(__func__, text);
}

void zvCCStartService() {
  Call(__func__);
  LockedState()->recording = true;
}

void zvCCStopService() {
  Call(__func__);
  LockedState()->recording = false;
}

bool isCCRecording() {
  Call(__func__);
  const bool recording = LockedState()->recording;
  return GiveFlag(__func__, recording);
}

bool isCCRecordMic() {
  Call(__func__);
  const bool recording = LockedState()->recording;
  return GiveFlag(__func__, recording);
}

std::int32_t getCCPerformance() {
  Call(__func__);
  return GiveNumber(__func__, ConstProp::CC_PERFORMANCE_GOOD);
}

// 1 while the recording service runs, else 0.
std::int32_t getCCWindowState() {
  Call(__func__);
  const bool recording = LockedState()->recording;
  return GiveNumber(__func__, recording ? 1 : 0);
}

void zvPushGameVoice(const char* data, std::size_t size, std::uint32_t sampleRate, std::uint32_t bitsPerSample,
                     std::uint32_t channels) {
  const std::string voice = data == nullptr ? "null" : "<" + std::to_string(size) + " bytes>";
  Call(__func__, Verbatim{voice}, size, sampleRate, bitsPerSample, channels);
}

void zvVerifyMobile(std::int32_t number) {
  Call(__func__, number);
  const auto code = GiveCode(__func__, kOk, kFailed);
  Reply({code == kOk ? MakeEvent<events::VerifySuccess>(code, std::to_string(number))
                     : MakeEvent<events::VerifyFailure>(code, std::to_string(number))});
}

void zvCollectEvent(const std::string& text) { Call(__func__, text); }
void zvTrackCustomEvent(const std::string& name, const std::string& value) { Call(__func__, name, value); }
void zvFlushCustomEvents() { Call(__func__); }
void zvSendProfile(const std::string& text, bool flag) { Call(__func__, text, flag); }
void zvSetUserIdentifier(const std::string& text) { Call(__func__, text); }

}  // namespace tarn::velora
