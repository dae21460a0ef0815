// Start-up, login and account, identifiers, properties, free-form commands and options.
#include <cstring>

#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"
#include "platform/operations.h"

namespace tarn::velora {

using namespace offline;

namespace {

constexpr std::int32_t kBindOk = 130;
constexpr std::int32_t kBindFailed = -130;

// Replies to a login or a switch of accounts. The player is logged in afterwards if the code is 0.
void ReplyLogin(const Operation& call) {
  const auto code = call.Code();
  Reply({MakeEvent<events::LoginDone>(code)}, [code] { LockedState()->loggedIn = code == kOk; });
}

// Starts an operation that needs zvInit to have completed.
Operation CallStarted(const char* operation) {
  const Operation call = Call(operation);
  if (!Get(&State::initialized)) Warn(operation, "the SDK has not started");
  return call;
}

// Returns whether `name` starts with `word` and no letter of the same case follows: true for "INT_FPS", "int_fps" and
// "intFps", false for "interval".
bool StartsWithWord(const char* name, std::string_view word) {
  if (!std::string_view(name).starts_with(word)) return false;
  const char firstLetter = word[0] < 'a' ? 'A' : 'a';
  const char next = name[word.size()];
  return next < firstLetter || next >= firstLetter + 26;
}

// Returns the option's value in the form of call lines. Its type follows from the option's name: a 32-bit integer for
// "int", a one-byte flag for "bool", else a zero-terminated string. As with the SDK itself, a pointer to another type
// is undefined behaviour.
std::string OptionValue(const char* name, const void* value) {
  if (name == nullptr || value == nullptr) return "null";
  if (StartsWithWord(name, "int") || StartsWithWord(name, "INT")) {
    std::int32_t number = 0;
    std::memcpy(&number, value, sizeof number);
    return FormatArguments(number);
  }
  if (StartsWithWord(name, "bool") || StartsWithWord(name, "BOOL")) {
    return FormatArguments(*static_cast<const unsigned char*>(value) != 0);
  }
  return FormatArguments(static_cast<const char*>(value));
}

}  // namespace

void zvInit() {
  const auto code = Call(__func__).Code();
  Reply({MakeEvent<events::FinishInit>(code)}, [code] { LockedState()->initialized = code == kOk; });
}

void zvLogin() { ReplyLogin(CallStarted(__func__)); }

void zvLogout() {
  const auto code = Call(__func__).Code();
  Reply({MakeEvent<events::LogoutDone>(code)}, [code] {
    if (code == kOk) LockedState()->loggedIn = false;
  });
}

void zvSwitchAccount() { ReplyLogin(CallStarted(__func__)); }

void zvGuestBind() {
  const auto code = CallStarted(__func__).Code(kBindOk, kBindFailed);
  Reply({MakeEvent<events::LoginDone>(code)}, [code] { LockedState()->bound = code == kBindOk; });
}

// The manager and pause views close at once. If the canned result is false, they do not open and no event follows.
void zvOpenManager() {
  if (Call(__func__).Flag(true)) Reply({MakeEvent<events::CloseManagerView>()});
}

void zvOpenPauseView() {
  if (!Call(__func__).Flag(true)) return;
  Reply({MakeEvent<events::ClosePauseView>(), MakeEvent<events::ContinueGame>()});
}

// The player confirms the exit.
void zvOpenExitView() {
  const bool opened = Call(__func__).Flag(true);
  Reply({opened ? MakeEvent<events::ExitApp>() : MakeEvent<events::ExitOpenExitViewFailed>()});
}

void exitApp() {
  Call(__func__);
  Reply({MakeEvent<events::ExitApp>()});
}

void zvGameLoginSuccess() { Call(__func__); }
void zvUpLoadUserInfo() { Call(__func__); }
void zvDoSdkRealNameRegister() { Call(__func__); }
void zvAntiAddiction(const std::string& text) { Call(__func__, text); }

void setJFSauthWithKey(const std::string& key, const std::string& value, bool flag) {
  Call(__func__, key, value, flag);
}

bool isInit() { return Call(__func__).Flag(Get(&State::initialized)); }
bool hasLogin() { return Call(__func__).Flag(Get(&State::loggedIn)); }

// The default identifiers show that they come from the offline runtime.
bool getChannel(std::string& out) { return Call(__func__).Text("offline", out); }
bool getAppChannel(std::string& out) { return Call(__func__).Text("offline_app", out); }
bool getPlatform(std::string& out) { return Call(__func__).Text("offline_platform", out); }
bool getAuthTypeName(std::string& out) { return Call(__func__).Text("offline_auth", out); }
bool getUdid(std::string& out) { return Call(__func__).Text("offline_udid", out); }
bool getChannelByImsi(std::string& out) { return Call(__func__).Text("offline_imsi", out); }
bool getChannelByImsiEx(std::string& out) { return Call(__func__).Text("offline_imsi_ex", out); }
bool getCCTypeByImsi(std::string& out) { return Call(__func__).Text("offline_cc_type", out); }

bool getSDKVersion(const std::string& text, std::string& out) { return Call(__func__, text).Text("offline_sdk", out); }

bool getUserInfo(const std::string& key, std::string& out) {
  return Call(__func__, key).Text(Find(&State::userInfo, key), out);
}

void setUserInfo(const std::string& key, const std::string& value) {
  Call(__func__, key, value);
  LockedState()->userInfo.insert_or_assign(key, value);
}

bool getPropStr(const std::string& name, std::string& out) {
  return Call(__func__, name).Text(Find(&State::textProperties, name), out);
}

bool getPropStr(const std::string& name, const std::string& second, std::string& out) {
  return Call(__func__, name, second).Text(Find(&State::textProperties, name).value_or(second), out);
}

void setPropStr(const std::string& name, const std::string& value) {
  Call(__func__, name, value);
  LockedState()->textProperties.insert_or_assign(name, value);
}

std::int32_t getPropInt(const std::string& name, std::int32_t number) {
  return Call(__func__, name, number).Number(Find(&State::numberProperties, name).value_or(number));
}

void setPropInt(const std::string& name, std::int32_t value) {
  Call(__func__, name, value);
  LockedState()->numberProperties.insert_or_assign(name, value);
}

// True for any name once zvGuestBind has completed.
bool isBinded(const std::string& text) { return Call(__func__, text).Flag(Get(&State::bound)); }

bool zvHasPlatform(const std::string& text) { return Call(__func__, text).Flag(text == "offline_platform"); }

// Returns true if the integer property of the feature's name is set and not 0.
bool hasFeature(const std::string& feature) {
  return Call(__func__, feature).Flag(Find(&State::numberProperties, feature).value_or(0) != 0);
}

// The event repeats the command.
void zvExtendFunc(const std::string& text) {
  std::string reply;
  if (Call(__func__, text).Text(text, reply)) Reply({MakeEvent<events::ExtendFuncCall>(std::move(reply))});
}

void zvvGenericFunctionCall(const std::string& text) { Call(__func__, text); }
void zvCallbackSuccess(const std::string& text) { Call(__func__, text); }
void zvCallbackFail(const std::string& text) { Call(__func__, text); }
void zvUpdateApi(const std::string& first, const std::string& second) { Call(__func__, first, second); }
void zvJFLog(const char* text) { Call(__func__, text); }

void zvLumoSetOption(const char* name, const void* value) { Call(__func__, name, Verbatim{OptionValue(name, value)}); }

void setCmdLineParameter(const char* text) {
  Call(__func__, text);
  std::optional<std::string> newValue;
  if (text != nullptr) newValue = text;
  LockedState()->commandLine.swap(newValue);
}

// The pointer is valid until the parameter is set or read again, or the runtime is reset.
const char* getCmdLineParameter() {
  std::string answer;
  if (!Call(__func__).Text(Get(&State::commandLine), answer)) return nullptr;
  LockedState state;
  if (state->commandLine == answer) return state->commandLine->c_str();
  state->commandLineAnswer.swap(answer);
  return state->commandLineAnswer.c_str();
}

}  // namespace tarn::velora
