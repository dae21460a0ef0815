// Start-up, login and account, identifiers, properties, free-form commands and options.
#include <cstring>

#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"
#include "platform/operations.h"

namespace tarn::velora {

using namespace offline;

namespace {

constexpr std::int32_t kOk = 0;
constexpr std::int32_t kFailed = 1;
constexpr std::int32_t kBindOk = 130;
constexpr std::int32_t kBindFailed = -130;

std::optional<std::string> Find(const StringMap& texts, const std::string& key) {
  const auto found = texts.find(key);
  return found == texts.end() ? std::nullopt : std::optional(found->second);
}

std::int32_t FindNumber(const std::string& name, std::int32_t fallback) {
  LockedState state;
  const auto found = state->numberProperties.find(name);
  return found == state->numberProperties.end() ? fallback : found->second;
}

// A login, a switch of accounts: LoginDone, and the player is in when its code is 0.
void ReplyLogin(std::int32_t code) {
  Reply({MakeEvent<events::LoginDone>(code)}, [code] { LockedState()->loggedIn = code == kOk; });
}

enum class OptionForm { kText, kNumber, kFlag };

// The rows of zvLumoSetOption: a name that begins with "int" or "bool" as a word of its own ("INT_FPS", "int_fps",
// "intFps", but not "interval") has a value of that form, every other name a text. The SDK gets a bare pointer, to a
// 32-bit integer, to zero-terminated text or to a one-byte flag, and nothing tells it which: as with the SDK itself,
// the script must give the value in the form that the option's name asks for.
struct OptionPrefix {
  const char* text;
  char first;  // from here to `last`: letters that carry the word on
  char last;
  OptionForm form;
};
constexpr OptionPrefix kOptionPrefixes[] = {
    {"int", 'a', 'z', OptionForm::kNumber},
    {"INT", 'A', 'Z', OptionForm::kNumber},
    {"bool", 'a', 'z', OptionForm::kFlag},
    {"BOOL", 'A', 'Z', OptionForm::kFlag},
};

OptionForm FormOf(const char* name) {
  for (const OptionPrefix& prefix : kOptionPrefixes) {
    const std::size_t length = std::strlen(prefix.text);
    if (std::strncmp(name, prefix.text, length) != 0) continue;
    if (name[length] < prefix.first || name[length] > prefix.last) return prefix.form;
  }
  return OptionForm::kText;
}

std::string OptionValue(const char* name, const void* value) {
  if (name == nullptr || value == nullptr) return "null";
  switch (FormOf(name)) {
    case OptionForm::kNumber: {
      std::int32_t number = 0;
      std::memcpy(&number, value, sizeof number);
      return Joined(number);
    }
    case OptionForm::kFlag:
      return Joined(*static_cast<const unsigned char*>(value) != 0);
    case OptionForm::kText:
      break;
  }
  return Joined(static_cast<const char*>(value));
}

}  // namespace

void zvInit() {
  Call(__func__);
  const auto code = GiveCode(__func__, kOk, kFailed);
  Reply({MakeEvent<events::FinishInit>(code)}, [code] { LockedState()->initialised = code == kOk; });
}

void zvLogin() {
  Call(__func__);
  ReplyLogin(GiveCode(__func__, kOk, kFailed));
}

void zvLogout() {
  Call(__func__);
  const auto code = GiveCode(__func__, kOk, kFailed);
  Reply({MakeEvent<events::LogoutDone>(code)}, [code] {
    if (code == kOk) LockedState()->loggedIn = false;
  });
}

void zvSwitchAccount() {
  Call(__func__);
  ReplyLogin(GiveCode(__func__, kOk, kFailed));
}

void zvGuestBind() {
  Call(__func__);
  const auto code = GiveCode(__func__, kBindOk, kBindFailed);
  Reply({MakeEvent<events::LoginDone>(code)}, [code] { LockedState()->bound = code == kBindOk; });
}

// The manager view and the pause view close as soon as they open: there is nobody to look at them. Where the answer is
// false they do not open.
void zvOpenManager() {
  Call(__func__);
  if (GiveFlag(__func__, true)) Reply({MakeEvent<events::CloseManagerView>()});
}

void zvOpenPauseView() {
  Call(__func__);
  if (GiveFlag(__func__, true)) Reply({MakeEvent<events::ClosePauseView>(), MakeEvent<events::ContinueGame>()});
}

// The exit view's question is answered with yes.
void zvOpenExitView() {
  Call(__func__);
  const bool opened = GiveFlag(__func__, true);
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

bool isInit() {
  Call(__func__);
  const bool initialised = LockedState()->initialised;
  return GiveFlag(__func__, initialised);
}

bool hasLogin() {
  Call(__func__);
  const bool loggedIn = LockedState()->loggedIn;
  return GiveFlag(__func__, loggedIn);
}

// Identifiers say that nothing real stands behind them.
bool getChannel(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline", out);
}

bool getAppChannel(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_app", out);
}

bool getPlatform(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_platform", out);
}

bool getAuthTypeName(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_auth", out);
}

bool getUdid(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_udid", out);
}

bool getChannelByImsi(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_imsi", out);
}

bool getChannelByImsiEx(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_imsi_ex", out);
}

bool getCCTypeByImsi(std::string& out) {
  Call(__func__);
  return GiveText(__func__, "offline_cc_type", out);
}

bool getSDKVersion(const std::string& text, std::string& out) {
  Call(__func__, text);
  return GiveText(__func__, "offline_sdk", out);
}

bool getUserInfo(const std::string& key, std::string& out) {
  Call(__func__, key);
  const auto value = Find(LockedState()->userInfo, key);
  return GiveText(__func__, value, out);
}

void setUserInfo(const std::string& key, const std::string& value) {
  Call(__func__, key, value);
  LockedState()->userInfo.insert_or_assign(key, value);
}

bool getPropStr(const std::string& name, std::string& out) {
  Call(__func__, name);
  const auto value = Find(LockedState()->textProperties, name);
  return GiveText(__func__, value, out);
}

bool getPropStr(const std::string& name, const std::string& second, std::string& out) {
  Call(__func__, name, second);
  const auto value = Find(LockedState()->textProperties, name);
  return GiveText(__func__, value.value_or(second), out);
}

void setPropStr(const std::string& name, const std::string& value) {
  Call(__func__, name, value);
  LockedState()->textProperties.insert_or_assign(name, value);
}

std::int32_t getPropInt(const std::string& name, std::int32_t number) {
  Call(__func__, name, number);
  return GiveNumber(__func__, FindNumber(name, number));
}

void setPropInt(const std::string& name, std::int32_t value) {
  Call(__func__, name, value);
  LockedState()->numberProperties.insert_or_assign(name, value);
}

// A guest account is bound once zvGuestBind is answered, to whatever is asked for.
bool isBinded(const std::string& text) {
  Call(__func__, text);
  const bool bound = LockedState()->bound;
  return GiveFlag(__func__, bound);
}

bool zvHasPlatform(const std::string& text) {
  Call(__func__, text);
  return GiveFlag(__func__, text == "offline_platform");
}

// A feature is there when the number property of its name is set and not 0.
bool hasFeature(const std::string& feature) {
  Call(__func__, feature);
  return GiveFlag(__func__, FindNumber(feature, 0) != 0);
}

// The command's text comes back in the event.
void zvExtendFunc(const std::string& text) {
  Call(__func__, text);
  std::string reply;
  if (GiveText(__func__, text, reply)) Reply({MakeEvent<events::ExtendFuncCall>(std::move(reply))});
}

void zvvGenericFunctionCall(const std::string& text) { Call(__func__, text); }
void zvCallbackSuccess(const std::string& text) { Call(__func__, text); }
void zvCallbackFail(const std::string& text) { Call(__func__, text); }
void zvUpdateApi(const std::string& first, const std::string& second) { Call(__func__, first, second); }
void zvJFLog(const char* text) { Call(__func__, text); }

void zvLumoSetOption(const char* name, const void* value) { Call(__func__, name, Verbatim{OptionValue(name, value)}); }

void setCmdLineParameter(const char* text) {
  Call(__func__, text);
  std::optional<std::string> fresh;
  if (text != nullptr) fresh = text;
  LockedState()->commandLine.swap(fresh);
}

// The pointer stays valid until the parameter is set or asked for again, or the runtime is reset.
const char* getCmdLineParameter() {
  Call(__func__);
  std::optional<std::string> commandLine = LockedState()->commandLine;
  std::string answer;
  if (!GiveText(__func__, commandLine, answer)) return nullptr;
  LockedState state;
  if (state->commandLine == answer) return state->commandLine->c_str();
  state->answeredCommandLine.swap(answer);
  return state->answeredCommandLine.c_str();
}

}  // namespace tarn::velora
