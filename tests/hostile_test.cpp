// Hostile scripts: finalizers and callbacks that raise errors or call back at the worst moment; and an SDK that throws
// or calls scripts in the middle of a wrapper.
#include <set>
#include <stdexcept>
#include <utility>

#include "download/handler.h"
#include "platform/event.h"
#include "tests/harness.h"

namespace tests {
namespace {

using namespace tarn::velora;

// What each operation of the SDK does first, after some that do nothing. kCallScript happens once.
enum class Fault { kNothing, kThrow, kRunOutOfMemory, kCallScript } fault = Fault::kNothing;

std::set<std::string> hooked;  // the operations that had a fault
bool hadFault = false;         // since the last InjectFault
lua_Integer skipped = 0;

void Hook(const char* operation) {
  if (fault == Fault::kNothing || skipped-- > 0) return;
  hooked.insert(operation);
  hadFault = true;
  if (fault == Fault::kThrow) throw std::runtime_error("the SDK broke: 100% s");
  if (fault == Fault::kRunOutOfMemory) throw std::bad_alloc();
  fault = Fault::kNothing;
  luavelora::downloadHandler.onProgress(operation);
}

// inject(n, k) injects Fault n into all operations but the next k. Returns whether an operation has had a fault since
// the last call.
int InjectFault(lua_State* L) {
  fault = static_cast<Fault>(luaL_checkinteger(L, 1));
  skipped = luaL_optinteger(L, 2, 0);
  lua_pushboolean(L, std::exchange(hadFault, false));
  return 1;
}

struct Hostile : HostTest {
  Hostile() {
    offline::SetCallHook(Hook);
    fault = Fault::kNothing;
    hooked.clear();
    lua_register(host.L, "inject", InjectFault);
    EXPECT_EQ(host.RunFile("hostile.lua"), "");
  }

  void TearDown() override {
    offline::SetCallHook(nullptr);
    HostTest::TearDown();
  }

  // Stops the collector, since the finalizers may raise in any script.
  void StopFinalizers() {
    lua_gc(host.L, LUA_GCSTOP, 0);
    EXPECT_EQ(host.Run("stop()"), "");
    lua_gc(host.L, LUA_GCRESTART, 0);
  }

  // The host still works.
  void ExpectSound() {
    EXPECT_EQ(host.Run("local o = velora.OrderInfo.new('after') o:set_count(3) velora.setOnExitApp(noop) "
                       "return o:get_productId(), o:get_count(), velora.getOnExitApp() == noop"),
              "\"after\", 3, true");
    EXPECT_EQ(lua_gettop(host.L), 0);
  }
};

TEST_F(Hostile, FinalizersThatRaiseOrInterfereWhileTheModuleWorks) {
  for (const char* action : {
           "error('finalizer')",
           "error({})",
           "share:set_textMsg{a = 'b'} share:set_toUserList{'x'} product:set_sdkPids{c = 'd'} order:set_aid('z')",
           "velora.OrderInfo.__gc(order) velora.ShareInfo.__gc(share) velora.ProductInfo.__gc(product)",
           "velora.zvShare(share) velora.zvCheckOrder(order) velora.OrderInfo.regProduct(product)",
           "velora.setOnLoginDone(print) velora.download.setSyncDownloadHandler()",
           "velora.download.setSyncDownloadHandler{onInited = noop, onProgress = noop, onFinish = noop}",
       }) {
    EXPECT_EQ(host.Run(std::string("return callWithFinalizer(function() ") + action + " end)"),
              std::string("true, ") + (std::string_view(action).starts_with("error") ? "true" : "false"))
        << action;
    ExpectSound();
  }
}

TEST_F(Hostile, TablesThatChangeWhileTheyAreRead) {
  EXPECT_EQ(
      host.Run("local t t = setmetatable({'a', 'b', 'c'}, {__len = function() for k in pairs(t) do t[k] = nil end "
               "return 3 end}) velora.zvDeleteInviters(t) share:set_toUserList(t) return share:get_toUserList()"),
      "{}");
  EXPECT_EQ(host.Run("share:set_toUserList(setmetatable({'a'}, {__len = function() share:set_toUserList{'inner'} "
                     "return 1 end})) return share:get_toUserList()"),
            "{[1]=\"a\"}");
  EXPECT_EQ(host.Run("share:set_toUserList(setmetatable({'a'}, {__len = function() velora.ShareInfo.__gc(share) "
                     "return 1 end})) return share:get_toUserList()"),
            "");
  EXPECT_EQ(host.Run("local t = {} for i = 1, 100 do t[i] = i + 0.5 end runInFinalizers(function() for k in pairs(t) "
                     "do t[k] = nil end end) velora.zvDeleteInviters(t) product:set_sdkPids(t)"),
            "");
  StopFinalizers();
  ExpectSound();
}

// For each event layout, while every allocation may run a finalizer that raises: each event is delivered once, and at
// most one error of a finalizer is logged for it.
TEST_F(Hostile, FinalizersThatRaiseWhileThePumpBuildsArguments) {
  host.Run(
      "seen = 0 for name, f in pairs(velora) do if name:find('^setOn') then f(function() seen = seen + "
      "(collectgarbage('isrunning') and 1 or 0) end) end end "
      "runInFinalizers(function() error('finalizer', 0) end)");
  constexpr int kEvents = 600;
  for (int i = 1; i < kEvents; ++i) offline::Post(MakeEvent(i % luavelora::kEventTypes, true));
  auto list = std::make_shared<AccountListEvent>(41);
  list->accounts.assign(1000, offline::MakeAccount({}));  // so long that the collector would finish cycles each time
  offline::Post(std::move(list));
  EXPECT_EQ(host.Frame(), "");
  StopFinalizers();
  const auto lines = offline::TakeLog();
  EXPECT_GT(lines.size(), 0u);
  EXPECT_LE(lines.size(), std::size_t{kEvents});
  for (const std::string& line : lines)
    EXPECT_EQ(line, "[VELORA] 0 [Velora callback err] error in __gc metamethod (finalizer)");
  EXPECT_EQ(host.Run("return seen, collectgarbage('isrunning')"), std::to_string(kEvents) + ", true");
  ExpectSound();
}

// No C++ exception of the SDK reaches Lua as one: each becomes a Lua error, and what the call had begun is
// undone.
TEST_F(Hostile, AnSdkThatThrows) {
  for (const auto& [what, text] :
       {std::pair{Fault::kThrow, "the SDK broke: 100% s"}, {Fault::kRunOutOfMemory, "not enough memory"}}) {
    EXPECT_EQ(host.Run("callWhatFails(" + std::to_string(static_cast<int>(what)) + ", '" + text + "')"), "");
    ExpectSound();
  }
  EXPECT_GT(hooked.size(), 250u);
  fault = Fault::kThrow;
  EXPECT_EQ(host.Frame(), "the SDK broke: 100% s");
  fault = Fault::kNothing;
}

// An SDK that returns empty references, and a log library that throws.
struct Broken : offline::Observer {
  Broken() { offline::SetObserver(this); }
  ~Broken() override { offline::SetObserver(nullptr); }
  void OnEvents(const std::vector<std::shared_ptr<Event>>& events) override {
    auto& batch = const_cast<std::vector<std::shared_ptr<Event>>&>(events);
    batch.insert(batch.begin(), nullptr);
  }
  void OnLog(const std::string&) override {
    ++lines;
    throw std::runtime_error("the log broke");
  }
  int lines = 0;
};

TEST_F(Hostile, EmptyReferencesAndALogThatThrows) {
  Broken broken;
  host.Run(
      "got = 0 velora.setOnLoginDone(function() got = got + 1 error('x') end) debug.getregistry().VELORA[-1] = 1 "
      "velora.download.setSyncDownloadHandler{onInited = error, onProgress = noop, onFinish = noop}");
  for (int type : {15, -1, 15}) offline::Post(std::make_shared<CodeEvent>(type));
  EXPECT_EQ(host.Frame(), "");
  offline::Handlers().at(0)->onInited();
  EXPECT_EQ(host.Run("return got"), "2");
  EXPECT_EQ(broken.lines, 4);
}

// The script's download handler runs during a call and finalizes the objects that the call uses.
TEST_F(Hostile, AnSdkThatCallsScriptsInTheMiddleOfACall) {
  EXPECT_EQ(host.Run("return callWhatCallsBack(3)"), "\"inner\", true, true, \"inner\"");
  ExpectSound();
  EXPECT_GT(hooked.size(), 250u);
}

// If there is no memory for the call of a finalizer, Lua drops it; the record is freed when the state closes.
// Afterwards no object of any class is valid, though its own finalizer never ran, and none can be created.
TEST_F(Hostile, FinalizersThatFindNoMemory) {
  host.Open(false);
  static int used;
  used = 0;
  lua_register(host.L, "used", [](lua_State*) {
    ++used;
    return 0;
  });
  EXPECT_EQ(host.RunFile("late_finalizers.lua"), "");
  InitLuaVelora(host.L);
  host.Run("velora.setOnControllerStateEvent(function(pad) weak[pad] = true end)");
  lua_State* L = host.L;
  lua_gc(L, LUA_GCSTOP, 0);
  for (const char* type :
       {"OrderInfo", "ShareInfo", "ProductInfo", "PadEvent", "AccountInfo", "QueryRankInfo", "SkuDetailsInfo"}) {
    for (int i = 0; i < 20; ++i) offline::Post(MakeEvent(10, true));  // PadEvents
    EXPECT_EQ(host.Frame(), "");
    host.Run(std::string("local new = velora.") + type +
             ".new for i = 1, new and 20 or 0 do weak[new(1, 2, 3, 4, 5, 6, 7)] = true end");
    for (int i = 0; i < 20; ++i) {
      lua_State* fresh = lua_newthread(L);  // it must allocate for a call within a call
      lua_pushcfunction(fresh, [](lua_State* state) {
        memory::FailAfter(0);
        lua_gc(state, LUA_GCCOLLECT, 0);
        return 0;
      });
      const int status = lua_pcall(fresh, 0, 0, 0);
      memory::Restore();
      EXPECT_NE(status, LUA_OK) << type << i;
      lua_pop(L, 1);
      host.Run("for object in pairs(weak) do kept[object] = true end");
    }
    host.Run("collectgarbage() collectgarbage()");
    EXPECT_EQ(host.Run(std::string("return count('") + type + "')"), "20") << type;
  }
  host.Close();
  EXPECT_EQ(used, 0);
  EXPECT_EQ(offline::LiveRecords(), 0u);
}

// Finalizers that collect while the state closes run the module's own closing in the middle of their work. No cycle may
// be running then: Lua 5.3 itself loops forever if lua_close interrupts a sweep and a finalizer collects.
TEST_F(Hostile, FinalizersThatCollectWhileTheStateCloses) {
  for (const char* action : {
           "local s = velora.ShareInfo.new('late') s:set_toUserList(setmetatable({'a'}, {__len = function() "
           "collectgarbage() return 1 end}))",
           "collectgarbage('restart') collectgarbage('setpause', 0) for i = 1, 50 do velora.OrderInfo.new('x') end",
           "collectgarbage('restart') velora.zvGetCheckedOrders()",
           "local o = velora.OrderInfo.new('x') inject(3) velora.zvCheckOrder(o) o:set_aid(1.5)",
           "inject(3) velora.OrderInfo.new('late')",     // before there is a holder
           "inject(3, 1) velora.ShareInfo.new('late')",  // while the holder reads the record
       }) {
    host.Open();
    lua_register(host.L, "inject", InjectFault);
    offline::SetCheckedOrders(std::vector(5000, offline::MakeOrder({})));
    host.Run(
        "velora.download.setSyncDownloadHandler{onInited = print, onFinish = print, "
        "onProgress = function() collectgarbage() end}");
    // More finalizers than a few steps of the collector run, so that the closing comes in the middle of a list.
    host.Run("objects = {} for i = 1, 1000 do objects[i] = velora.OrderInfo.new('x') end");
    host.Run(std::string("planted = setmetatable({}, {__gc = function() ") + action + " end})");
    lua_gc(host.L, LUA_GCCOLLECT, 0);
    lua_gc(host.L, LUA_GCSTOP, 0);
    host.Close();
    offline::Reset();
    EXPECT_EQ(offline::LiveRecords(), 0u) << action;
  }
}

// A finalizer creates an object while the state closes; it is collected after its holder was freed.
TEST_F(Hostile, AnObjectThatOutlivesTheClosing) {
  host.Open(false);
  host.Run("last = setmetatable({}, {__gc = function() collectgarbage() end})");
  InitLuaVelora(host.L);
  host.Run("first = setmetatable({}, {__gc = function() velora.OrderInfo.new('late') end})");
  lua_gc(host.L, LUA_GCCOLLECT, 0);
  lua_gc(host.L, LUA_GCSTOP, 0);
  host.Close();
  EXPECT_EQ(offline::LiveRecords(), 0u);
}

// A finalizer that sets a handler of its own while one is being set: the last one is used, with all its functions.
TEST_F(Hostile, HandlersSetWhileAHandlerIsSet) {
  host.Run(
      "good = {onInited = noop, onProgress = noop, onFinish = noop} "
      "runInFinalizers(function() velora.download.setSyncDownloadHandler(good) end)");
  for (const char* call : {"velora.download.setSyncDownloadHandler()",
                           "pcall(velora.download.setSyncDownloadHandler, {onInited = print})"}) {
    for (int i = 0; i < 50; ++i) {
      host.Run(std::string(call) +
               " collectgarbage('stop') off = velora.download.getSyncDownloadHandler() == nil "
               "collectgarbage('restart')");
      EXPECT_EQ(luavelora::downloadHandler.state() == nullptr, offline::Handlers().empty()) << call;
    }
    lua_gc(host.L, LUA_GCSTOP, 0);
    EXPECT_EQ(host.Run(std::string(call) + " return velora.download.getSyncDownloadHandler()"), "") << call;
    EXPECT_TRUE(offline::Handlers().empty()) << call;
    lua_gc(host.L, LUA_GCRESTART, 0);
  }
  StopFinalizers();
}

}  // namespace
}  // namespace tests
