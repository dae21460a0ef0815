// A call was refused if it returns without having reached the SDK, which the runtime's call hook detects. For functions
// that never call the SDK, kWithoutSdk has tests of their arguments.
#include "player/strict.h"

#include <string_view>

#include "offline/control.h"
#include "platform/binding_helpers.h"
#include "player/call_text.h"
#include "player/lost_values.h"
#include "player/missing_names.h"
#include "player/reports.h"

namespace player {
namespace {

// Its address is the registry key of a table from functions to their names.
constexpr char kNames = 0;

// Returns whether the function `name` accepts the arguments on the stack.
using Test = bool (*)(lua_State* L, std::string_view name);

bool TakesAnything(lua_State*, std::string_view) { return true; }

bool TakesFunction(lua_State* L, std::string_view) { return lua_isfunction(L, 1); }

bool TakesObject(lua_State* L, std::string_view name) {
  const char* className = ClassName(L, 1);
  return className != nullptr && name.starts_with(className) && FromUserType(L, 1) != nullptr;
}

// A test for the functions whose names start with `prefix`, which do not call the SDK.
struct Rule {
  std::string_view prefix;
  Test test;
};

constexpr Rule kWithoutSdk[] = {
    {"setOn", TakesFunction},
    {"getOn", TakesAnything},
    {"download.getSyncDownloadHandler", TakesAnything},
    {"ProductInfo.new", TakesAnything},
    {"ProductInfo.get_", TakesObject},
    {"ProductInfo.set_", TakesObject},
// A share request's containers are cached in the object.
#define VELORA_CACHED_FIELD(name, Family, label) \
  {"ShareInfo.get_" #name, TakesObject}, {"ShareInfo.set_" #name, TakesObject},
#include "platform/share_info.def"
};

// Returns the test for a function, or null if its accepted calls reach the SDK.
Test FindTest(std::string_view name) {
  if (name.ends_with(".__gc")) return TakesObject;
  for (const Rule& rule : kWithoutSdk)
    if (name.starts_with(rule.prefix)) return rule.test;
  return nullptr;
}

// The call that began last, until it has ended. A nested call overwrites it, and a call that raises an error does not
// end. Neither matters: a call that runs script code or raises has already passed its argument tests.
struct Call {
  lua_State* L = nullptr;
  const char* name = nullptr;  // null if there is none
  bool reachedSdk = false;
  CallText text = {};
};
Call call;

void ReportRefusal() { Report("%s was refused", call.text); }

// Returns the name of the function that the event is about, or null if it is not one of the module's.
const char* FindName(lua_State* L, lua_Debug* event) {
  const char* name = nullptr;
  lua_rawgetp(L, LUA_REGISTRYINDEX, &kNames);
  lua_getinfo(L, "f", event);
  if (lua_iscfunction(L, -1) && lua_istable(L, -2) && lua_rawget(L, -2) == LUA_TSTRING) name = lua_tostring(L, -1);
  lua_pop(L, 2);
  return name;
}

// Returns whether the call passes the tests of the arguments other than those that ReportLostValues tests.
bool IsAccepted(lua_State* L, std::string_view name) {
  if (name.find(".set_") != name.npos) return TakesObject(L, name);
  return name != "zvSendPushNotification" || lua_isstring(L, 1) != 0;
}

void Begin(lua_State* L, lua_Debug* event) {
  const char* name = FindName(L, event);
  if (name == nullptr) return;
  call.L = L;
  call.name = name;
  call.reachedSdk = false;
  DescribeCall(L, name, call.text);  // before the call, which may convert a number argument to a string in place
  if (IsAccepted(L, name)) ReportLostValues(L, name, call.text);
  if (const Test test = FindTest(name)) {
    if (!test(L, name)) ReportRefusal();
    call.name = nullptr;
  }
}

void Finish(lua_State* L, lua_Debug* event) {
  if (call.name == nullptr || call.L != L || call.name != FindName(L, event)) return;
  if (!call.reachedSdk) ReportRefusal();
  call.name = nullptr;
}

void OnOperation(const char*) { call.reachedSdk = true; }

// Adds the functions of the table on top of the stack to the table at `names`, with `prefix` before their names.
void AddFunctions(lua_State* L, int names, const char* prefix) {
  for (lua_pushnil(L); lua_next(L, -2) != 0; lua_pop(L, 1)) {
    if (!lua_iscfunction(L, -1)) continue;
    lua_pushvalue(L, -1);
    lua_pushfstring(L, "%s%s", prefix, lua_tostring(L, -3));
    lua_rawset(L, names);
  }
}

}  // namespace

void OpenStrict(lua_State* L) {
  call.name = nullptr;
  lua_newtable(L);
  const int names = lua_gettop(L);
  lua_getglobal(L, "velora");
  AddFunctions(L, names, "");
  for (lua_pushnil(L); lua_next(L, -2) != 0; lua_settop(L, names + 2)) {
    if (!lua_istable(L, -1)) continue;
    const char* prefix = lua_pushfstring(L, "%s.", lua_tostring(L, -2));
    lua_insert(L, -2);
    AddFunctions(L, names, prefix);
  }
  lua_pop(L, 1);
  lua_rawsetp(L, LUA_REGISTRYINDEX, &kNames);
  tarn::velora::offline::SetCallHook(OnOperation);
  OpenMissingNames(L);
}

void ReportWarning(const char* operation, const char* reason) {
  Report("%s: %s", call.name != nullptr && std::string_view(call.name) == operation ? call.text : operation, reason);
}

void WatchCall(lua_State* L, lua_Debug* event) {
  if (event->event == LUA_HOOKRET)
    Finish(L, event);
  else
    Begin(L, event);
}

}  // namespace player
