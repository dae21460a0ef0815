// A call that the module accepts reaches the SDK, as the runtime's call hook tells, or raises an error, and then it
// does not return. For the functions that never reach the SDK, a table says what they take.
#include "player/strict.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "offline/control.h"
#include "platform/binding_helpers.h"
#include "player/terminal.h"

namespace player {
namespace {

// Under its address the registry holds the table of the functions' names, by function.
constexpr char kNames = 0;

constexpr const char* kMetatables[] = {"LuaProductInfo",   "LuaOrderInfo",   "LuaSkuDetailsInfo", "LuaShareInfo",
                                       "LuaQueryRankInfo", "LuaAccountInfo", "LuaPadEvent"};

// The name of the class whose object stands at `index`, or null.
const char* ClassName(lua_State* L, int index) {
  for (const char* metatable : kMetatables)
    if (CheckMetaTableInUserType(L, index, metatable)) return metatable + std::strlen("Lua");
  return nullptr;
}

// A line of text in a fixed place, since a hook can own nothing. What does not fit is cut off.
class Line {
 public:
  const char* text() const { return text_; }

  void Clear() {
    length_ = 0;
    text_[0] = '\0';
  }

  void Add(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text_ + length_, sizeof text_ - length_, format, arguments);
    va_end(arguments);
    if (length > 0) length_ = std::min(length_ + static_cast<std::size_t>(length), sizeof text_ - 1);
  }

 private:
  char text_[2048];
  std::size_t length_ = 0;
};

// The text with its control bytes, and the characters of `marks`, in the form that Lua reads.
void AddEscaped(Line& line, std::string_view text, std::string_view marks) {
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '\n')
      line.Add("\\n");
    else if (byte < 0x20 || byte == 0x7f)
      line.Add("\\%03u", static_cast<unsigned>(byte));
    else
      line.Add(marks.find(character) == marks.npos ? "%c" : "\\%c", character);
  }
}

// The text as call lines quote it. A long one ends, between two characters of UTF-8, in dots.
void AddQuoted(Line& line, std::string_view text) {
  constexpr std::size_t kLongest = 48;
  std::size_t length = std::min(text.size(), kLongest);
  if (length < text.size())
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xc0U) == 0x80U) --length;
  line.Add("\"");
  AddEscaped(line, text.substr(0, length), "\"\\");
  line.Add(length < text.size() ? "...\"" : "\"");
}

// As Lua prints it: a float shows that it is none of the integers.
void AddFloat(Line& line, double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.14g", number);
  line.Add(text[std::strspn(text, "-0123456789")] == '\0' ? "%s.0" : "%s", text);
}

void AddObject(Line& line, lua_State* L, int index) {
  const char* name = ClassName(L, index);
  if (name == nullptr)
    line.Add("userdata");
  else
    line.Add(FromUserType(L, index) == nullptr ? "finished %s" : "%s", name);
}

void AddValue(Line& line, lua_State* L, int index) {
  std::size_t length = 0;
  switch (lua_type(L, index)) {
    case LUA_TBOOLEAN:
      return line.Add(lua_toboolean(L, index) != 0 ? "true" : "false");
    case LUA_TNUMBER:
      if (!lua_isinteger(L, index)) return AddFloat(line, lua_tonumber(L, index));
      return line.Add("%lld", static_cast<long long>(lua_tointeger(L, index)));
    case LUA_TSTRING: {
      const char* text = lua_tolstring(L, index, &length);
      return AddQuoted(line, {text, length});
    }
    case LUA_TUSERDATA:
      return AddObject(line, L, index);
    default:
      return line.Add("%s", luaL_typename(L, index));
  }
}

// Where the script stands that made the running call; what was compiled without line numbers has none.
void AddPosition(Line& line, lua_State* L) {
  lua_Debug caller;
  for (int level = 1; lua_getstack(L, level, &caller) != 0; ++level) {
    lua_getinfo(L, "Sl", &caller);
    if (*caller.what == 'C') continue;
    AddEscaped(line, caller.short_src, "");
    return caller.currentline > 0 ? line.Add(":%d", caller.currentline) : line.Add(":?");
  }
  line.Add("[C]");
}

void AddCall(Line& line, lua_State* L, const char* name) {
  line.Add("%s(", name);
  for (int i = 1; i <= lua_gettop(L); ++i) {
    if (i > 1) line.Add(", ");
    AddValue(line, L, i);
  }
  line.Add(")");
}

// Whether the arguments on the stack are those that the function `name` takes.
using Test = bool (*)(lua_State* L, std::string_view name);

bool TakesAnything(lua_State*, std::string_view) { return true; }

bool TakesFunction(lua_State* L, std::string_view) { return lua_isfunction(L, 1); }

bool TakesObject(lua_State* L, std::string_view name) {
  const char* className = ClassName(L, 1);
  return className != nullptr && name.starts_with(className) && FromUserType(L, 1) != nullptr;
}

// The functions that do not reach the SDK when they are accepted, by how their names begin.
struct Rule {
  std::string_view beginning;
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

// Null for a function that reaches the SDK when it is accepted.
Test FindTest(std::string_view name) {
  if (name.ends_with(".__gc")) return TakesObject;
  for (const Rule& rule : kWithoutSdk)
    if (name.starts_with(rule.beginning)) return rule.test;
  return nullptr;
}

// The latest call that began, as long as it may still turn out refused. A call inside it takes its place, and one that
// raises an error never ends. Neither matters: what has come to run script code, or to raise, is not refused any more.
struct Call {
  lua_State* L = nullptr;
  const char* name = nullptr;  // null where there is none
  bool reachedSdk = false;
  Line line = {};
};
Call call;

void Report() { std::fprintf(stderr, "%s[strict]%s %s was refused\n", Yellow(), Plain(), call.line.text()); }

// The name of the function that the event is about, or null where it is none of the module's.
const char* FindName(lua_State* L, lua_Debug* event) {
  const char* name = nullptr;
  lua_rawgetp(L, LUA_REGISTRYINDEX, &kNames);
  lua_getinfo(L, "f", event);
  if (lua_iscfunction(L, -1) && lua_istable(L, -2) && lua_rawget(L, -2) == LUA_TSTRING) name = lua_tostring(L, -1);
  lua_pop(L, 2);
  return name;
}

void Begin(lua_State* L, lua_Debug* event) {
  const char* name = FindName(L, event);
  if (name == nullptr) return;
  call.L = L;
  call.name = name;
  call.reachedSdk = false;
  call.line.Clear();
  AddPosition(call.line, L);
  call.line.Add(": ");
  AddCall(call.line, L, name);  // now, since the call may turn a number into its text
  if (const Test test = FindTest(name)) {
    if (!test(L, name)) Report();
    call.name = nullptr;
  }
}

void Finish(lua_State* L, lua_Debug* event) {
  if (call.name == nullptr || call.L != L || call.name != FindName(L, event)) return;
  if (!call.reachedSdk) Report();
  call.name = nullptr;
}

void OnOperation(const char*) { call.reachedSdk = true; }

// Adds the functions of the table on top of the stack to that at `names`, with `prefix` in front of their names.
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
}

void WatchCall(lua_State* L, lua_Debug* event) {
  if (event->event == LUA_HOOKRET)
    Finish(L, event);
  else
    Begin(L, event);
}

}  // namespace player
