#include "bench/cases.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <lua.hpp>
#include <string>
#include <utility>

#include "bench/allocations.h"
#include "bench/lower_bound.h"
#include "bench/null_sdk.h"
#include "module/lua_velora.h"
#include "offline/control.h"
#include "platform/order_info.h"

namespace bench {

struct EventKind {
  const char* callback;  // the event's name in the callback accessors; null if no callback is set
  std::shared_ptr<tarn::velora::Event> (*make)();
};

namespace {

using namespace tarn::velora;

class State {
 public:
  State() : L(lua_newstate(CountingLuaAllocator, nullptr)) { luaL_openlibs(L); }
  State(State&& other) noexcept : L(std::exchange(other.L, nullptr)) {}
  ~State() {
    if (L != nullptr) lua_close(L);
  }

  lua_State* L;
};

// Prints Lua's message and ends the program if `status` is an error.
void Check(lua_State* L, int status) {
  if (status == LUA_OK) return;
  std::fprintf(stderr, "%s\n", lua_tostring(L, -1));
  std::abort();
}

// Returns a state with module and lower bound. It has both whichever is measured, so that the collector's work is
// equal.
State MeasuredState() {
  State state;
  InitLuaVelora(state.L);
  OpenBare(state.L);
  return state;
}

// Calls from a loop in Lua.
class Calls : public Workload {
 public:
  Calls(const Case& measured, Side side) : state_(MeasuredState()), operations_(measured.operations) {
    lua_State* L = state_.L;
    const std::string chunk = std::string("local api, list, map, map100 = ...\n") + measured.script;
    Check(L, luaL_loadbuffer(L, chunk.data(), chunk.size(), measured.name));
    lua_getglobal(L, side == Side::kModule ? "velora" : "bare");
    PushStrings(L, 100, false);
    PushStrings(L, 4, true);
    PushStrings(L, 100, true);
    Check(L, lua_pcall(L, 4, 1, 0));
  }

  void Prepare() override {}

  void Run() override {
    lua_State* L = state_.L;
    lua_pushvalue(L, -1);
    lua_pushinteger(L, operations_);
    Check(L, lua_pcall(L, 1, 0, 0));
  }

 private:
  // Pushes a table of strings, under string keys or as a list.
  static void PushStrings(lua_State* L, int count, bool keyed) {
    lua_newtable(L);
    for (int k = 1; k <= count; ++k) {
      lua_pushfstring(L, "key %d", k);
      lua_pushfstring(L, "value %d", k);
      if (keyed) {
        lua_rawset(L, -3);
      } else {
        lua_rawseti(L, -3, k);
        lua_pop(L, 1);
      }
    }
  }

  State state_;
  std::int64_t operations_;
};

// Frames with the same number of events each. The events are kept, since destroying them is the SDK's work.
class Frames : public Workload {
 public:
  Frames(const Case& measured, Side side)
      : state_(MeasuredState()),
        count_(measured.operations / std::max<std::int64_t>(measured.frame.events, 1)),
        update_(side == Side::kModule ? UpdateLuaVelora : UpdateBare) {
    const EventKind* kind = measured.frame.kind;
    if (kind == nullptr) return;
    frames_.resize(static_cast<std::size_t>(count_));
    for (Batch& batch : frames_)
      for (std::int64_t k = 0; k < measured.frame.events; ++k) batch.push_back(kind->make());
    if (kind->callback == nullptr) return;
    const std::string chunk = std::string("velora.setOn") + kind->callback + "(function() end)";
    Check(state_.L, luaL_dostring(state_.L, chunk.c_str()));
  }

  void Prepare() override { QueueFrames(frames_); }

  void Run() override {
    for (std::int64_t k = 0; k < count_; ++k) update_(state_.L);
  }

 private:
  State state_;
  std::int64_t count_;
  std::vector<Batch> frames_;
  void (*update_)(lua_State*);
};

// A string key of a table and its value.
struct TableField {
  std::string key;
  int type;
  lua_CFunction function = nullptr;
  lua_Integer integer = 0;
  std::string string = {};
  std::vector<TableField> table = {};
};

// Returns the fields of the table on top of the stack.
std::vector<TableField> ReadFields(lua_State* L) {
  std::vector<TableField> fields;
  for (lua_pushnil(L); lua_next(L, -2) != 0; lua_pop(L, 1)) {
    TableField& field = fields.emplace_back(TableField{lua_tostring(L, -2), lua_type(L, -1)});
    if (field.type == LUA_TTABLE)
      field.table = ReadFields(L);
    else if (lua_isinteger(L, -1))
      field.integer = lua_tointeger(L, -1);
    else if (field.type == LUA_TSTRING)
      field.string = lua_tostring(L, -1);
    else if ((field.function = lua_tocfunction(L, -1)) == nullptr)
      std::abort();
  }
  return fields;
}

// Pushes a new table with the fields.
void PushFields(lua_State* L, const std::vector<TableField>& fields) {
  lua_createtable(L, 0, static_cast<int>(fields.size()));
  for (const TableField& field : fields) {
    lua_pushlstring(L, field.key.data(), field.key.size());
    if (field.type == LUA_TTABLE)
      PushFields(L, field.table);
    else if (field.type == LUA_TNUMBER)
      lua_pushinteger(L, field.integer);
    else if (field.type == LUA_TSTRING)
      lua_pushlstring(L, field.string.data(), field.string.size());
    else
      lua_pushcfunction(L, field.function);
    lua_rawset(L, -3);
  }
}

// The module's start in new states. The lower bound stores the content of the module's tables in tables of their size.
class Starts : public Workload {
 public:
  Starts(const Case& measured, Side side) : operations_(measured.operations), side_(side) {
    const State state;
    InitLuaVelora(state.L);
    lua_getglobal(state.L, "velora");
    fields_ = ReadFields(state.L);
  }

  void Prepare() override {
    states_.clear();
    states_.resize(static_cast<std::size_t>(operations_));
  }

  void Run() override {
    for (State& state : states_) {
      if (side_ == Side::kModule) {
        InitLuaVelora(state.L);
      } else {
        PushFields(state.L, fields_);
        lua_setglobal(state.L, "velora");
      }
    }
  }

 private:
  std::int64_t operations_;
  Side side_;
  std::vector<TableField> fields_;
  std::vector<State> states_;
};

template <class Kind>
std::unique_ptr<Workload> Make(const Case& measured, Side side) {
  return std::make_unique<Kind>(measured, side);
}

template <class Layout, std::int32_t type>
std::shared_ptr<Event> MakeEvent() {
  return std::make_shared<Layout>(type);
}

std::shared_ptr<Event> MakeText() {
  auto event = std::make_shared<TextEvent>(13);
  event->text = "hello";
  return event;
}

std::shared_ptr<Event> MakePadKey() {
  static const std::shared_ptr<PadRecord> pad = offline::MakePad({});
  auto event = std::make_shared<PadKeyEvent>(5);
  event->pad = pad;
  return event;
}

std::shared_ptr<Event> MakeAccounts() {
  static const std::shared_ptr<AccountInfo> account = offline::MakeAccount({});
  auto event = std::make_shared<AccountListEvent>(41);
  event->accounts.assign(100, account);
  return event;
}

std::shared_ptr<Event> MakeTexts() {
  auto event = std::make_shared<TextListEvent>(47);
  for (int k = 0; k < 100; ++k) event->texts.push_back("friend " + std::to_string(k));
  return event;
}

const EventKind kPlain = {"StartupDone", MakeEvent<PlainEvent, 35>};
const EventKind kCode = {"LoginDone", MakeEvent<CodeEvent, 15>};
const EventKind kDropped = {nullptr, MakeEvent<CodeEvent, 15>};
const EventKind kText = {"ExtendFuncCall", MakeText};
const EventKind kPadKey = {"ControllerKeyDown", MakePadKey};
const EventKind kAccounts = {"QueryFriendListFinished", MakeAccounts};
const EventKind kTexts = {"QueryInviteFriendListFinished", MakeTexts};

constexpr std::int64_t kMany = 20'000;
constexpr std::int64_t kSome = 2'000;

constexpr auto kCalls = Make<Calls>;
constexpr auto kFrames = Make<Frames>;

constexpr int kRecords = 10'000;

// Calls `make(k)` for k from 1 to kRecords and returns what it leaves on the heap per call.
template <class Make>
Held HeldPerRecord(lua_State* L, Make make) {
  lua_gc(L, LUA_GCCOLLECT, 0);
  const Held before = HeldNow();
  for (int k = 1; k <= kRecords; ++k) make(k);
  lua_gc(L, LUA_GCCOLLECT, 0);
  const Held after = HeldNow();
  return {(after.bytes - before.bytes) / kRecords, (after.blocks - before.blocks) / kRecords};
}

}  // namespace

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases = {
      {"frame", "idle", kMany, kFrames},
      {"events", "plain", kMany, kFrames, "", {&kPlain, 1000}},
      {"events", "code", kMany, kFrames, "", {&kCode, 1000}},
      {"events", "text", kMany, kFrames, "", {&kText, 1000}},
      {"events", "controller", kMany, kFrames, "", {&kPadKey, 1000}},
      {"events", "100 accounts", 400, kFrames, "", {&kAccounts, 10}},
      {"events", "100 texts", 400, kFrames, "", {&kTexts, 10}},
      {"events", "dropped", kMany, kFrames, "", {&kDropped, 1000}},
      {"growth", "10 a frame", kMany, kFrames, "", {&kCode, 10}},
      {"growth", "100 a frame", kMany, kFrames, "", {&kCode, 100}},
      {"growth", "1,000 a frame", kMany, kFrames, "", {&kCode, 1000}},
      {"growth", "10,000 a frame", kMany, kFrames, "", {&kCode, 10'000}},
      {"growth", "100,000 a frame", 100'000, kFrames, "", {&kCode, 100'000}},
      {"growth", "1,000,000 a frame", 1'000'000, kFrames, "", {&kCode, 1'000'000}},
      {"calls", "no argument", kMany, kCalls,
       "local f = api.zvFlushCustomEvents; return function(n) for i = 1, n do f() end end"},
      {"calls", "integer", kMany, kCalls,
       "local f = api.zvCancelLocalNotification; return function(n) for i = 1, n do f(7) end end"},
      {"calls", "two strings", kMany, kCalls,
       "local f = api.setPropStr; return function(n) for i = 1, n do f('name', 'value') end end"},
      {"calls", "string, integer", kMany, kCalls,
       "local f = api.setPropInt; return function(n) for i = 1, n do f('name', 7) end end"},
      {"calls", "out string, 9 bytes", kMany, kCalls,
       "local f = api.getChannel; return function(n) for i = 1, n do f() end end"},
      {"calls", "out string, 25 bytes", kMany, kCalls,
       "local f = api.getAppChannel; return function(n) for i = 1, n do f() end end"},
      {"calls", "out string, 4 KiB", kSome, kCalls,
       "local f = api.getUdid; return function(n) for i = 1, n do f() end end"},
      {"calls", "record", kMany, kCalls,
       "local f, order = api.zvCheckOrder, api.OrderInfo.new('gold'); return function(n) for i = 1, n do f(order) end "
       "end"},
      {"calls", "list of 100 strings", kSome, kCalls,
       "local f = api.zvDeleteInviters; return function(n) for i = 1, n do f(list) end end"},
      {"calls", "map of 100 entries", kSome, kCalls,
       "local share = api.ShareInfo.new(); return function(n) for i = 1, n do share:set_shareData(map100) end end"},
      {"records", "get string", kMany, kCalls,
       "local order = api.OrderInfo.new('gold'); order:set_aid('player 1'); "
       "return function(n) for i = 1, n do order:get_aid() end end"},
      {"records", "set string", kMany, kCalls,
       "local order = api.OrderInfo.new('gold'); return function(n) for i = 1, n do order:set_aid('player 1') end end"},
      {"records", "get integer", kMany, kCalls,
       "local order = api.OrderInfo.new('gold'); return function(n) for i = 1, n do order:get_count() end end"},
      {"records", "set integer", kMany, kCalls,
       "local order = api.OrderInfo.new('gold'); return function(n) for i = 1, n do order:set_count(7) end end"},
      {"records", "get map of 4", kSome, kCalls,
       "local share = api.ShareInfo.new(); share:set_shareData(map); "
       "return function(n) for i = 1, n do share:get_shareData() end end"},
      {"records", "set map of 4", kSome, kCalls,
       "local share = api.ShareInfo.new(); return function(n) for i = 1, n do share:set_shareData(map) end end"},
      {"records", "new and collect", kSome, kCalls,
       "local new = api.OrderInfo.new; return function(n) for i = 1, n do new('gold') end end"},
      {"start", "InitLuaVelora", 20, Make<Starts>},
  };
  return cases;
}

Held HeldRecord(Side side) {
  const State state = MeasuredState();
  lua_State* L = state.L;
  Check(L, luaL_dostring(L, side == Side::kModule ? "return velora.OrderInfo.new" : "return bare.OrderInfo.new"));
  lua_createtable(L, kRecords, 0);
  const Held all = HeldPerRecord(L, [L](int k) {
    lua_pushvalue(L, -2);
    lua_pushliteral(L, "gold");
    Check(L, lua_pcall(L, 1, 1, 0));
    lua_rawseti(L, -2, k);
  });
  std::vector<std::shared_ptr<OrderInfo>> records;
  records.reserve(kRecords);
  const Held sdk = HeldPerRecord(L, [&records](int) { records.push_back(OrderInfo::New("gold")); });
  return {all.bytes - sdk.bytes, all.blocks - sdk.blocks};
}

}  // namespace bench
