#include "player/lost_values.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <type_traits>

#include "platform/field_families.h"
#include "platform/operations.h"
#include "platform/types.h"
#include "player/reports.h"

namespace player {
namespace {

namespace families = tarn::velora::families;

// A function that takes a list of strings and drops elements of other types.
struct ListFunction {
  std::string_view name;
  int argument;  // the index of the list, or 0 if the function takes no such list
};

template <class Function>
constexpr int kListArgument = std::is_same_v<Function, void(const tarn::velora::StringList&)> ? 1 : 0;

constexpr ListFunction kListFunctions[] = {
#define VELORA_OPERATION(name) {#name, kListArgument<decltype(tarn::velora::name)>},
#define VELORA_OPERATION_OWN_RULES(name)
#include "platform/operations.def"
    {"zvSendPushNotification", 2},
#define VELORA_CACHED_FIELD(name, family, label) \
  {"ShareInfo.set_" #name, std::is_same_v<families::family, tarn::velora::StringList> ? 2 : 0},
#include "platform/share_info.def"
};

// A setter that takes a value of any type.
struct Setter {
  std::string_view name;
  // Returns a name for what is stored instead of the value at index 2, or null if that value is stored.
  const char* (*substitute)(lua_State* L);
};

template <class Value>
const char* Substitute(lua_State* L) {
  int fits = 0;
  if constexpr (std::is_same_v<Value, std::string>) return lua_isstring(L, 2) != 0 ? nullptr : "an empty string";
  if constexpr (std::is_floating_point_v<Value>)
    lua_tonumberx(L, 2, &fits);
  else if constexpr (std::is_integral_v<Value> && !std::is_same_v<Value, bool>)
    lua_tointegerx(L, 2, &fits);
  else
    fits = 1;
  return fits != 0 ? nullptr : "0";
}

constexpr Setter kSetters[] = {
#define SETTER(Record, name, family) {#Record ".set_" #name, Substitute<families::family>},
#define VELORA_CLASS_FIELD(Record, name, family) SETTER(Record, name, family)
#define VELORA_CLASS_FIELD_READ_ONLY(Record, name, family)
#include "platform/records.def"
};

template <class Row>
const Row* Find(const Row* begin, const Row* end, std::string_view name) {
  const Row* row = std::find_if(begin, end, [name](const Row& candidate) { return candidate.name == name; });
  return row == end ? nullptr : row;
}

constexpr std::size_t kMaxLength = 1 << 20;  // the module raises an error for a longer list

void ReportElements(lua_State* L, int list, const CallText& text) {
  const int length = static_cast<int>(std::min<std::size_t>(lua_rawlen(L, list), kMaxLength));
  for (int i = 1; i <= length; ++i) {
    lua_rawgeti(L, list, i);
    if (lua_isstring(L, -1) == 0)
      Report("%s: element %d was dropped (string expected, got %s)", text, i, luaL_typename(L, -1));
    lua_pop(L, 1);
  }
}

}  // namespace

void ReportLostValues(lua_State* L, std::string_view name, const CallText& text) {
  if (const auto* row = Find(std::begin(kListFunctions), std::end(kListFunctions), name)) {
    if (row->argument != 0 && lua_istable(L, row->argument)) ReportElements(L, row->argument, text);
  } else if (const auto* setter = Find(std::begin(kSetters), std::end(kSetters), name)) {
    if (const char* substitute = setter->substitute(L)) Report("%s stored %s", text, substitute);
  }
}

}  // namespace player
