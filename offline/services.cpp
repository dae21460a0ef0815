// Notifications, channels, views, QR codes, recording, analytics and verification.
#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"
#include "platform/const_prop.h"
#include "platform/operations.h"

namespace tarn::velora {

using namespace offline;

namespace {

constexpr std::int32_t kScanFailed = 10;
constexpr std::int32_t kProtocolConfirmed = 0;
constexpr std::int32_t kProtocolAccepted = 1;
constexpr std::int32_t kProtocolRejected = 2;

// The view stays open until the script closes it.
void ReplyOpened(const Operation& call) {
  Reply({call.Flag(true) ? MakeEvent<events::ShowViewOpened>() : MakeEvent<events::ShowViewFailed>()});
}

void ReplyClosed(const Operation& call) {
  if (call.Flag(true)) Reply({MakeEvent<events::ShowViewClosed>()});
}

// No image file is written; the event only repeats its path.
void ReplyQRCode(const Operation& call, const std::string& path) {
  Reply({MakeEvent<events::CreateQRCodeDone>(call.EventText(path))});
}

// The scanner reads the string passed to it.
void ReplyScan(const Operation& call, const std::string& text) {
  const auto code = call.Code(kOk, kScanFailed);
  Reply({MakeEvent<events::CodeScannerFinish>(code, code == kOk ? call.EventText(text) : "")});
}

void ReplyNotice(const Operation& call, const char* notice) {
  std::string text;
  if (call.Text(notice, text)) Reply({MakeEvent<events::StartupGetNoticeMsgDone>(std::move(text))});
}

}  // namespace

void zvGetUsePushNotification() {
  Reply({MakeEvent<events::PushGetUserPushFinished>(Call(__func__).Flag(Get(&State::pushEnabled)))});
}

void zvSetUsePushNotification(bool enabled) {
  const bool done = Call(__func__, enabled).Flag(true);
  Reply({MakeEvent<events::PushSetUserPushFinished>(done)}, [done, enabled] {
    if (done) LockedState()->pushEnabled = enabled;
  });
}

void zvSendPushNotification(const std::string& text, const StringList& accountIds) {
  Reply({MakeEvent<events::PushSendPushNotificationFinished>(Call(__func__, text, accountIds).Flag(true))});
}

void zvSendLocalNotification(const std::string& text) {
  const auto code = Call(__func__, text).Code();
  Reply({MakeEvent<events::PushSendLocalNotificationFinished>(code)}, [code] {
    if (code == kOk) LockedState()->notificationPending = true;
  });
}

void zvCancelLocalNotification(std::int32_t id) {
  const bool done = Call(__func__, id).Flag(true);
  Reply({MakeEvent<events::CancelLocalPushFinished>(done)}, [done] {
    if (done) LockedState()->notificationPending = false;
  });
}

// Returns true if a local notification was sent and none was cancelled since.
bool zvHasNotification() { return Call(__func__).Flag(Get(&State::notificationPending)); }

void zvConnectToChannel() {
  const auto code = Call(__func__).Code();
  Reply({MakeEvent<events::ConnectToChannelFinished>(code)}, [code] { LockedState()->channelConnected = code == kOk; });
}

void zvDisConnectFromChannel() {
  const auto code = Call(__func__).Code();
  Reply({MakeEvent<events::DisconnectToChannelFinished>(code)}, [code] {
    if (code == kOk) LockedState()->channelConnected = false;
  });
}

void zvSelectChannelOption(std::int32_t option) {
  Reply({MakeEvent<events::SelectChannelOptionFinished>(Call(__func__, option).Flag(true))});
}

bool zvHasChannelConnected() { return Call(__func__).Flag(Get(&State::channelConnected)); }

bool zvGetChannelID(std::string& out) {
  return Call(__func__).Text(Get(&State::channelConnected) ? std::optional("offline_channel_id") : std::nullopt, out);
}

void zvSetZone(const std::string& zone) { Call(__func__, zone); }

void zvOpenNearby() { ReplyOpened(Call(__func__)); }
void zvOpenVespera() { ReplyOpened(Call(__func__)); }
void zvShowConversation() { ReplyOpened(Call(__func__)); }
void zvShowFAQs() { ReplyOpened(Call(__func__)); }
void zvShowWeb(const std::string& url) { ReplyOpened(Call(__func__, url)); }
void zvOpenWebView(const std::string& url) { ReplyOpened(Call(__func__, url)); }

void zvShowBoard(const std::string& first, const std::string& second, const std::string& third) {
  ReplyOpened(Call(__func__, first, second, third));
}

void zvCloseWebView() { ReplyClosed(Call(__func__)); }
void zvCloseFlash() { ReplyClosed(Call(__func__)); }

// The player takes the reward and closes the view at once.
void zvShowRewardView(const StringList& rewards) {
  if (Call(__func__, rewards).Flag(true)) {
    Reply({MakeEvent<events::ShowViewOpened>(), MakeEvent<events::ShowViewRewarded>(),
           MakeEvent<events::ShowViewClosed>()});
  } else {
    Reply({MakeEvent<events::ShowViewFailed>()});
  }
}

// If the agreement is shown, the player accepts it.
void zvShowCompactView(bool shown) {
  const auto success = shown ? kProtocolAccepted : kProtocolConfirmed;
  Reply({MakeEvent<events::ProtocolFinish>(Call(__func__, shown).Code(success, kProtocolRejected))});
}

void zvSetFloatBtnVisible(bool visible) { Call(__func__, visible); }

void zvGetNotice(bool flag) { ReplyNotice(Call(__func__, flag), "offline notice"); }
void zvGetAnnouncementInfo() { ReplyNotice(Call(__func__), "offline announcement"); }

void zvCreateQRCode(const std::string& text, std::int32_t width, std::int32_t height, const std::string& path) {
  ReplyQRCode(Call(__func__, text, width, height, path), path);
}

void zvCreateQRCode(const std::string& text, std::int32_t width, std::int32_t height, const std::string& path,
                    const std::string& icon) {
  ReplyQRCode(Call(__func__, text, width, height, path, icon), path);
}

void zvScannerQRCode(const std::string& text) { ReplyScan(Call(__func__, text), text); }

void zvPresentQRCodeScanner(const std::string& text, std::int32_t number) {
  ReplyScan(Call(__func__, text, number), text);
}

void zvCCStartService() {
  Call(__func__);
  LockedState()->recording = true;
}

void zvCCStopService() {
  Call(__func__);
  LockedState()->recording = false;
}

bool isCCRecording() { return Call(__func__).Flag(Get(&State::recording)); }
bool isCCRecordMic() { return Call(__func__).Flag(Get(&State::recording)); }
std::int32_t getCCPerformance() { return Call(__func__).Number(ConstProp::CC_PERFORMANCE_GOOD); }

// Returns 1 while the recording service runs, else 0.
std::int32_t getCCWindowState() { return Call(__func__).Number(Get(&State::recording) ? 1 : 0); }

void zvPushGameVoice(const char* data, std::size_t size, std::uint32_t sampleRate, std::uint32_t bitsPerSample,
                     std::uint32_t channels) {
  const std::string voice = data == nullptr ? "null" : "<" + std::to_string(size) + " bytes>";
  Call(__func__, Verbatim{voice}, size, sampleRate, bitsPerSample, channels);
}

void zvVerifyMobile(std::int32_t number) {
  const auto code = Call(__func__, number).Code();
  Reply({code == kOk ? MakeEvent<events::VerifySuccess>(code, std::to_string(number))
                     : MakeEvent<events::VerifyFailure>(code, std::to_string(number))});
}

void zvCollectEvent(const std::string& text) { Call(__func__, text); }
void zvTrackCustomEvent(const std::string& name, const std::string& value) { Call(__func__, name, value); }
void zvFlushCustomEvents() { Call(__func__); }
void zvSendProfile(const std::string& text, bool flag) { Call(__func__, text, flag); }
void zvSetUserIdentifier(const std::string& text) { Call(__func__, text); }

}  // namespace tarn::velora
