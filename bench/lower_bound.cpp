// Tables are created with their final size, a record takes one heap block besides its userdata, and a metatable is an
// upvalue or is looked up once per list. Each string is pushed by lua_pushstring or lua_pushlstring, whichever was
// faster when measured: the former does not hash a string again that was pushed from the same address before.
#include "bench/lower_bound.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/account_info.h"
#include "platform/binding_helpers.h"
#include "platform/event.h"
#include "platform/log.h"
#include "platform/operations.h"
#include "platform/order_info.h"
#include "platform/pad_record.h"
#include "platform/share_info.h"

namespace bench {
namespace {

using namespace tarn::velora;

// The heap block that a record userdata points to.
template <class Record>
struct Holder {
  std::shared_ptr<Record> record;
};

// The registry key of a class's metatable.
template <class Record>
const char kMetatable = 0;

// The functions of a class have its metatable as upvalue.
constexpr int kOwnMetatable = lua_upvalueindex(1);

// Pushes a userdata with the metatable at `metatable`, an absolute index.
template <class Record>
void PushRecord(lua_State* L, std::shared_ptr<Record> reference, int metatable) {
  auto* holder = new Holder<Record>{std::move(reference)};
  *static_cast<Holder<Record>**>(lua_newuserdata(L, sizeof(void*))) = holder;
  lua_pushvalue(L, metatable);
  lua_setmetatable(L, -2);
}

template <class Record>
int Collect(lua_State* L) {
  delete *static_cast<Holder<Record>**>(lua_touserdata(L, 1));
  return 0;
}

// Returns the holder of argument 1, or null if it is not of the function's class. Leaves a value on the stack.
template <class Record>
Holder<Record>* Self(lua_State* L) {
  if (lua_getmetatable(L, 1) == 0 || lua_topointer(L, -1) != lua_topointer(L, kOwnMetatable)) return nullptr;
  return *static_cast<Holder<Record>**>(lua_touserdata(L, 1));
}

int FlushCustomEvents(lua_State*) {
  zvFlushCustomEvents();
  return 0;
}

int CancelLocalNotification(lua_State* L) {
  if (!lua_isinteger(L, 1)) return 0;
  zvCancelLocalNotification(static_cast<int>(lua_tointeger(L, 1)));
  return 0;
}

// `data` is null if the argument is neither a string nor a number.
struct StringArgument {
  StringArgument(lua_State* L, int index) : data(lua_tostring(L, index)) {}
  std::string Make() const { return data; }  // up to the first zero byte

  const char* data;
};

int SetPropStr(lua_State* L) {
  const StringArgument name(L, 1);
  const StringArgument value(L, 2);
  if (name.data == nullptr || value.data == nullptr) return 0;
  setPropStr(name.Make(), value.Make());
  return 0;
}

int SetPropInt(lua_State* L) {
  const StringArgument name(L, 1);
  if (name.data == nullptr || !lua_isinteger(L, 2)) return 0;
  setPropInt(name.Make(), static_cast<int>(lua_tointeger(L, 2)));
  return 0;
}

int PushResult(lua_State* L, const std::string& result) {
  lua_pushstring(L, result.c_str());
  return 1;
}

template <bool (*operation)(std::string&)>
int GetString(lua_State* L) {
  std::string out;
  return operation(out) ? PushResult(L, out) : 0;
}

int CheckOrder(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  zvCheckOrder(order->record);
  return 0;
}

int DeleteInviters(lua_State* L) {
  if (!lua_istable(L, 1)) return luaL_error(L, "ptrmust be table");
  lua_len(L, 1);
  const auto length = static_cast<int>(lua_tointeger(L, -1));
  StringList list;
  list.reserve(static_cast<std::size_t>(length));
  for (int k = 1; k <= length; ++k) {
    lua_rawgeti(L, 1, k);
    const StringArgument element(L, -1);
    list.emplace_back(element.data);
    if (k % 16 == 0) lua_settop(L, 1);  // Lua ensures 20 slots
  }
  zvDeleteInviters(list);
  return 0;
}

int NewOrder(lua_State* L) {
  const StringArgument productId(L, 1);
  if (productId.data == nullptr) return luaL_error(L, "velora.OrderInfo must be init with productId of type str!");
  PushRecord(L, OrderInfo::New(productId.Make()), kOwnMetatable);
  return 1;
}

int NewShare(lua_State* L) {
  PushRecord(L, ShareInfo::New(), kOwnMetatable);
  return 1;
}

int GetAid(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  std::string out;
  return order->record->get_aid(out) ? PushResult(L, out) : 0;
}

int SetAid(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  const StringArgument value(L, 2);
  order->record->set_aid(value.data == nullptr ? std::string() : value.Make());
  return 0;
}

int GetCount(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  lua_pushinteger(L, order->record->get_count());
  return 1;
}

int SetCount(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  order->record->set_count(static_cast<int>(lua_tointeger(L, 2)));
  return 0;
}

int GetShareData(lua_State* L) {
  auto* share = Self<ShareInfo>(L);
  if (share == nullptr) return 0;
  StringMap map;
  if (!share->record->get_shareData(map) || map.empty()) return 0;
  lua_createtable(L, 0, static_cast<int>(map.size()));
  for (const auto& [key, value] : map) {
    lua_pushstring(L, value.c_str());
    lua_setfield(L, -2, key.c_str());
  }
  return 1;
}

int SetShareData(lua_State* L) {
  auto* share = Self<ShareInfo>(L);
  if (share == nullptr) return 0;
  if (!lua_istable(L, 2)) return luaL_error(L, "ptrHashMapmust be table");
  StringMap map;
  lua_pushnil(L);
  while (lua_next(L, 2) != 0) {
    const StringArgument key(L, -2);
    const StringArgument value(L, -1);
    map.try_emplace(key.Make(), value.data);
    lua_pop(L, 1);
  }
  share->record->set_shareData(map);
  return 0;
}

const luaL_Reg kFunctions[] = {
    {"zvFlushCustomEvents", FlushCustomEvents},
    {"zvCancelLocalNotification", CancelLocalNotification},
    {"setPropStr", SetPropStr},
    {"setPropInt", SetPropInt},
    {"getChannel", GetString<getChannel>},
    {"getAppChannel", GetString<getAppChannel>},
    {"getUdid", GetString<getUdid>},
    {"zvDeleteInviters", DeleteInviters},
    {nullptr, nullptr},
};

const luaL_Reg kOrderFunctions[] = {
    {"new", NewOrder},       {"get_aid", GetAid},     {"set_aid", SetAid},
    {"get_count", GetCount}, {"set_count", SetCount}, {nullptr, nullptr},
};

const luaL_Reg kShareFunctions[] = {
    {"new", NewShare},
    {"get_shareData", GetShareData},
    {"set_shareData", SetShareData},
    {nullptr, nullptr},
};

// Pushes a new metatable and stores it in the registry.
template <class Record>
void PushMetatable(lua_State* L) {
  lua_newtable(L);
  lua_pushcfunction(L, Collect<Record>);
  lua_setfield(L, -2, "__gc");
  lua_pushvalue(L, -1);
  lua_rawsetp(L, LUA_REGISTRYINDEX, &kMetatable<Record>);
}

// Pops the metatable on top of the stack and stores its class in the table below.
void StoreClass(lua_State* L, const char* name, const luaL_Reg* functions) {
  lua_newtable(L);
  lua_pushvalue(L, -2);
  luaL_setfuncs(L, functions, 1);
  lua_pushvalue(L, -1);
  lua_setfield(L, -3, "__index");
  lua_setfield(L, -3, name);
  lua_pop(L, 1);
}

constexpr int kCallbacks = 1;
constexpr int kCallback = 2;

// Push the arguments of an event and return their number. There is one for each layout that the cases use.
int Push(lua_State* L, const CodeEvent& event) {
  lua_pushinteger(L, event.code);
  return 1;
}

int Push(lua_State* L, const TextEvent& event) {
  lua_pushstring(L, event.text.c_str());
  return 1;
}

int Push(lua_State* L, const TextListEvent& event) {
  const auto size = static_cast<int>(event.texts.size());
  lua_createtable(L, size, 0);
  for (int k = 0; k < size; ++k) {
    const std::string& text = event.texts[static_cast<std::size_t>(k)];
    lua_pushlstring(L, text.data(), text.size());
    lua_rawseti(L, -2, k + 1);
  }
  return 1;
}

int Push(lua_State* L, const PadKeyEvent& event) {
  lua_pushinteger(L, event.keyCode);
  *static_cast<Holder<PadRecord>**>(lua_newuserdata(L, sizeof(void*))) = new Holder<PadRecord>{event.pad};
  lua_rawgetp(L, LUA_REGISTRYINDEX, &kMetatable<PadRecord>);
  lua_setmetatable(L, -2);
  return 2;
}

int Push(lua_State* L, const AccountListEvent& event) {
  const auto size = static_cast<int>(event.accounts.size());
  lua_createtable(L, size, 0);
  lua_rawgetp(L, LUA_REGISTRYINDEX, &kMetatable<AccountInfo>);
  constexpr int kList = kCallback + 1;
  for (int k = 0; k < size; ++k) {
    PushRecord(L, event.accounts[static_cast<std::size_t>(k)], kList + 1);
    lua_rawseti(L, kList, k + 1);
  }
  lua_pop(L, 1);
  return 1;
}

template <class Layout>
int PushAs(lua_State* L, const Event& event) {
  return Push(L, static_cast<const Layout&>(event));
}

int PushArguments(lua_State* L, const Event& event) {
  switch (event.type) {
    case 5:
      return PushAs<PadKeyEvent>(L, event);
    case 13:
      return PushAs<TextEvent>(L, event);
    case 15:
      return PushAs<CodeEvent>(L, event);
    case 41:
      return PushAs<AccountListEvent>(L, event);
    case 47:
      return PushAs<TextListEvent>(L, event);
    default:
      return 0;
  }
}

}  // namespace

void OpenBare(lua_State* L) {
  lua_newtable(L);
  luaL_setfuncs(L, kFunctions, 0);
  PushMetatable<OrderInfo>(L);
  lua_pushvalue(L, -1);
  lua_pushcclosure(L, CheckOrder, 1);
  lua_setfield(L, -3, "zvCheckOrder");
  StoreClass(L, "OrderInfo", kOrderFunctions);
  PushMetatable<ShareInfo>(L);
  StoreClass(L, "ShareInfo", kShareFunctions);
  PushMetatable<PadRecord>(L);
  PushMetatable<AccountInfo>(L);
  lua_pop(L, 2);
  lua_setglobal(L, "bare");
}

void UpdateBare(lua_State* L) {
  std::vector<std::shared_ptr<Event>> batch;
  SwapEvents(batch);
  if (batch.empty()) return;
  GetSdkCallbackTable(L, "VELORA");
  for (const auto& event : batch) {
    if (lua_rawgeti(L, kCallbacks, event->type) == LUA_TNIL) {
      lua_pop(L, 1);
      continue;
    }
    const int arguments = PushArguments(L, *event);
    if (lua_pcall(L, arguments, 0, 0) != LUA_OK) {
      tarn::log::Log(LogChannel, 0, "[Velora callback err] %s", lua_tostring(L, -1));
      lua_pop(L, 1);
    }
  }
  lua_pop(L, 1);
}

}  // namespace bench
