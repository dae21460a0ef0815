// Hand-written bindings in plain style: test, read, call, push.
#include "bench/lower_bound.h"

#include <memory>
#include <string>
#include <vector>

#include "platform/account_info.h"
#include "platform/binding_helpers.h"
#include "platform/event.h"
#include "platform/log.h"
#include "platform/operations.h"
#include "platform/order_info.h"
#include "platform/pad_record.h"
#include "platform/share_info.h"
#include "platform/sku_details_info.h"

namespace bench {
namespace {

using namespace tarn::velora;

// What a record userdata carries: a holder with an owning pointer to a reference of its own.
template <class Record>
struct BareHolder {
  std::shared_ptr<Record>* record;
};

template <class Record>
constexpr const char* kMetatable = nullptr;
template <>
constexpr const char* kMetatable<OrderInfo> = "BareOrderInfo";
template <>
constexpr const char* kMetatable<ShareInfo> = "BareShareInfo";
template <>
constexpr const char* kMetatable<PadRecord> = "BarePadEvent";
template <>
constexpr const char* kMetatable<AccountInfo> = "BareAccountInfo";
template <>
constexpr const char* kMetatable<SkuDetailsInfo> = "BareSkuDetailsInfo";

template <class Record>
void PushHolder(lua_State* L, BareHolder<Record>* holder) {
  *static_cast<BareHolder<Record>**>(lua_newuserdata(L, sizeof(void*))) = holder;
  luaL_setmetatable(L, kMetatable<Record>);
}

template <class Record>
BareHolder<Record>* NewHolder(const std::shared_ptr<Record>& reference) {
  return new BareHolder<Record>{new std::shared_ptr<Record>(reference)};
}

template <class Record>
void PushRecord(lua_State* L, const std::shared_ptr<Record>& reference) {
  PushHolder(L, NewHolder(reference));
}

template <class Record>
int Collect(lua_State* L) {
  auto* holder = *static_cast<BareHolder<Record>**>(lua_touserdata(L, 1));
  delete holder->record;
  delete holder;
  return 0;
}

template <class Record>
std::shared_ptr<Record>* Self(lua_State* L) {
  auto** holder = static_cast<BareHolder<Record>**>(luaL_testudata(L, 1, kMetatable<Record>));
  return holder == nullptr ? nullptr : (*holder)->record;
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

int SetPropStr(lua_State* L) {
  if (!lua_isstring(L, 1) || !lua_isstring(L, 2)) return 0;
  setPropStr(lua_tostring(L, 1), lua_tostring(L, 2));
  return 0;
}

int SetPropInt(lua_State* L) {
  if (!lua_isstring(L, 1) || !lua_isinteger(L, 2)) return 0;
  setPropInt(lua_tostring(L, 1), static_cast<int>(lua_tointeger(L, 2)));
  return 0;
}

template <bool (*operation)(std::string&)>
int GetText(lua_State* L) {
  std::string out;
  if (!operation(out)) return 0;
  lua_pushstring(L, out.c_str());
  return 1;
}

int CheckOrder(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  zvCheckOrder(*order);
  return 0;
}

int DeleteInviters(lua_State* L) {
  if (!lua_istable(L, 1)) return luaL_error(L, "ptrmust be table");
  lua_len(L, 1);
  const auto length = static_cast<int>(lua_tointeger(L, -1));
  lua_pop(L, 1);
  StringList list;
  list.reserve(static_cast<std::size_t>(length));
  for (int k = 1; k <= length; ++k) {
    lua_rawgeti(L, 1, k);
    list.emplace_back(lua_tostring(L, -1));
    lua_pop(L, 1);
  }
  zvDeleteInviters(list);
  return 0;
}

int NewOrder(lua_State* L) {
  const char* productId = lua_tostring(L, 1);
  if (productId == nullptr) return luaL_error(L, "velora.OrderInfo must be init with productId of type str!");
  PushRecord(L, OrderInfo::New(productId));
  return 1;
}

int NewShare(lua_State* L) {
  PushRecord(L, ShareInfo::New());
  return 1;
}

int GetAid(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  std::string out;
  if (!(*order)->get_aid(out)) return 0;
  lua_pushstring(L, out.c_str());
  return 1;
}

int SetAid(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  const char* text = lua_tostring(L, 2);
  (*order)->set_aid(text == nullptr ? "" : text);
  return 0;
}

int GetCount(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  lua_pushinteger(L, (*order)->get_count());
  return 1;
}

int SetCount(lua_State* L) {
  auto* order = Self<OrderInfo>(L);
  if (order == nullptr) return 0;
  (*order)->set_count(static_cast<int>(lua_tointeger(L, 2)));
  return 0;
}

int GetShareData(lua_State* L) {
  auto* share = Self<ShareInfo>(L);
  if (share == nullptr) return 0;
  StringMap map;
  if (!(*share)->get_shareData(map) || map.empty()) return 0;
  lua_createtable(L, 0, 0);
  for (const auto& [key, value] : map) {
    lua_pushstring(L, key.c_str());
    lua_pushstring(L, value.c_str());
    lua_rawset(L, -3);
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
    map.insert_or_assign(lua_tostring(L, -2), lua_tostring(L, -1));
    lua_pop(L, 1);
  }
  (*share)->set_shareData(map);
  return 0;
}

// Makes a metatable and, for a class that scripts can make, its class table in the table on top of the stack.
template <class Record>
void AddClass(lua_State* L, const char* name, const luaL_Reg* rows) {
  lua_newtable(L);
  luaL_setfuncs(L, rows, 0);
  luaL_newmetatable(L, kMetatable<Record>);
  lua_pushcfunction(L, Collect<Record>);
  lua_setfield(L, -2, "__gc");
  lua_pushvalue(L, -2);
  lua_setfield(L, -2, "__index");
  lua_pop(L, 1);
  lua_setfield(L, -2, name);
}

const luaL_Reg kFunctions[] = {
    {"zvFlushCustomEvents", FlushCustomEvents},
    {"zvCancelLocalNotification", CancelLocalNotification},
    {"setPropStr", SetPropStr},
    {"setPropInt", SetPropInt},
    {"getChannel", GetText<getChannel>},
    {"getAppChannel", GetText<getAppChannel>},
    {"getUdid", GetText<getUdid>},
    {"zvCheckOrder", CheckOrder},
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

const luaL_Reg kNoFunctions[] = {{nullptr, nullptr}};

// What each layout pushes. The callback is fetched here, since a record's holder is made before it.
constexpr int kTable = 1;

int Give(lua_State* L, const PlainEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  return 0;
}

int Give(lua_State* L, const CodeEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  lua_pushinteger(L, event.code);
  return 1;
}

int Give(lua_State* L, const CodeTextEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  lua_pushinteger(L, event.code);
  lua_pushstring(L, event.text.c_str());
  return 2;
}

int Give(lua_State* L, const FlagEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  lua_pushboolean(L, event.flag);
  return 1;
}

int Give(lua_State* L, const TextEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  lua_pushstring(L, event.text.c_str());
  return 1;
}

int Give(lua_State* L, const TextPairEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  lua_pushstring(L, event.first.c_str());
  lua_pushstring(L, event.second.c_str());
  return 2;
}

int Give(lua_State* L, const TextListEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  lua_createtable(L, 0, 0);
  for (std::size_t k = 0; k < event.texts.size(); ++k) {
    lua_pushstring(L, event.texts[k].c_str());
    lua_rawseti(L, -2, static_cast<int>(k) + 1);
  }
  return 1;
}

int Give(lua_State* L, const PadKeyEvent& event) {
  auto* holder = NewHolder(event.pad);
  lua_rawgeti(L, kTable, event.type);
  lua_pushinteger(L, event.keyCode);
  PushHolder(L, holder);
  return 2;
}

int Give(lua_State* L, const PadPressureEvent& event) {
  auto* holder = NewHolder(event.pad);
  lua_rawgeti(L, kTable, event.type);
  lua_pushinteger(L, event.keyCode);
  lua_pushnumber(L, event.pressure);
  PushHolder(L, holder);
  return 3;
}

int Give(lua_State* L, const PadStickEvent& event) {
  auto* holder = NewHolder(event.pad);
  lua_rawgeti(L, kTable, event.type);
  lua_pushnumber(L, event.x);
  lua_pushnumber(L, event.y);
  PushHolder(L, holder);
  return 3;
}

template <class Record>
int GiveRecord(lua_State* L, std::int32_t type, const std::shared_ptr<Record>& reference) {
  auto* holder = NewHolder(reference);
  lua_rawgeti(L, kTable, type);
  PushHolder(L, holder);
  return 1;
}

int Give(lua_State* L, const PadStateEvent& event) { return GiveRecord(L, event.type, event.pad); }
int Give(lua_State* L, const OrderEvent& event) { return GiveRecord(L, event.type, event.order); }
int Give(lua_State* L, const AccountEvent& event) { return GiveRecord(L, event.type, event.account); }

template <class Record>
int GiveList(lua_State* L, std::int32_t type, const std::vector<std::shared_ptr<Record>>& records) {
  lua_rawgeti(L, kTable, type);
  lua_createtable(L, 0, 0);
  for (std::size_t k = 0; k < records.size(); ++k) {
    PushRecord(L, records[k]);
    lua_rawseti(L, -2, static_cast<int>(k) + 1);
  }
  return 1;
}

int Give(lua_State* L, const AccountListEvent& event) { return GiveList(L, event.type, event.accounts); }
int Give(lua_State* L, const SkuListEvent& event) { return GiveList(L, event.type, event.skus); }

void PushBlock(lua_State* L, const ByteBlock* block) {
  lua_pushlstring(L, reinterpret_cast<const char*>(block->data), block->size);
}

int Give(lua_State* L, const BytesEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  PushBlock(L, event.bytes);
  return 1;
}

int Give(lua_State* L, const TextBytesEvent& event) {
  lua_rawgeti(L, kTable, event.type);
  lua_pushstring(L, event.text.c_str());
  PushBlock(L, event.bytes);
  return 2;
}

int Deliver(lua_State* L, const Event& event) {
  switch (event.type) {
#define VELORA_EVENT(type, name, Layout) \
  case type:                             \
    return Give(L, static_cast<const Layout&>(event));
#include "platform/events.def"
#undef VELORA_EVENT
    default:
      return 0;
  }
}

}  // namespace

void OpenBare(lua_State* L) {
  lua_newtable(L);
  luaL_setfuncs(L, kFunctions, 0);
  AddClass<OrderInfo>(L, "OrderInfo", kOrderFunctions);
  AddClass<ShareInfo>(L, "ShareInfo", kShareFunctions);
  AddClass<PadRecord>(L, "PadEvent", kNoFunctions);
  AddClass<AccountInfo>(L, "AccountInfo", kNoFunctions);
  lua_setglobal(L, "bare");
}

void UpdateBare(lua_State* L) {
  std::vector<std::shared_ptr<Event>> batch;
  SwapEvents(batch);
  if (batch.empty()) return;
  GetSdkCallbackTable(L, "VELORA");
  for (const auto& event : batch) {
    const bool wanted = lua_rawgeti(L, kTable, event->type) != LUA_TNIL;
    lua_pop(L, 1);
    if (!wanted) continue;
    const int arguments = Deliver(L, *event);
    if (lua_pcall(L, arguments, 0, 0) != LUA_OK) {
      tarn::log::Log(LogChannel, 0, "[Velora callback err] %s", lua_tostring(L, -1));
      lua_pop(L, 1);
    }
  }
  lua_pop(L, 1);
}

}  // namespace bench
