// The cases and how each kind of them runs.
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

namespace bench {

struct EventKind {
  const char* callback;  // the setter of the callback; null where nobody listens
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

// Ends the program with Lua's message when `status` is an error.
void Check(lua_State* L, int status) {
  if (status == LUA_OK) return;
  std::fprintf(stderr, "%s\n", lua_tostring(L, -1));
  std::abort();
}

// A state with module and lower bound; both stay there whichever runs, so that the collector has the same to do.
State MeasuredState() {
  State state;
  InitLuaVelora(state.L);
  OpenBare(state.L);
  return state;
}

// Calls from Lua, in a loop written in Lua.
class Calls : public Workload {
 public:
  Calls(const Case& measured, Side side) : state_(MeasuredState()), operations_(measured.operations) {
    lua_State* L = state_.L;
    const std::string chunk = std::string("local api, list, map, map100 = ...\n") + measured.script;
    Check(L, luaL_loadbuffer(L, chunk.data(), chunk.size(), measured.name));
    lua_getglobal(L, side == Side::kModule ? "velora" : "bare");
    PushEntries(L, 100, false);
    PushEntries(L, 4, true);
    PushEntries(L, 100, true);
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
  // A table of texts, as a list or under text keys.
  static void PushEntries(lua_State* L, int count, bool keyed) {
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

// Frames with so many events each. The events live on: destroying them is the SDK's work and no part of the figures.
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

// The module's start in fresh states.
class Starts : public Workload {
 public:
  Starts(const Case& measured, Side side)
      : operations_(measured.operations), init_(side == Side::kModule ? InitLuaVelora : InitBare) {}

  void Prepare() override {
    states_.clear();
    states_.resize(static_cast<std::size_t>(operations_));
  }

  void Run() override {
    for (State& state : states_) init_(state.L);
  }

 private:
  std::int64_t operations_;
  void (*init_)(lua_State*);
  std::vector<State> states_;
};

template <class Kind>
std::unique_ptr<Workload> Make(const Case& measured, Side side) {
  return std::make_unique<Kind>(measured, side);
}

// An event of a type, filled by `fill`.
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

}  // namespace bench
