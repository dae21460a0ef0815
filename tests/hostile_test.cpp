// Scripts that mean harm: finalisers and callbacks that raise or call back at the worst moment, and an SDK that throws
// or calls into scripts in the middle of a wrapper.
#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

#include "download/handler.h"
#include "platform/event.h"
#include "tests/harness.h"

namespace tests {
namespace {

namespace offline = tarn::velora::offline;
using namespace tarn::velora;

// What the next operation named so does at its start.
const char* hookedOperation = nullptr;
enum class Deed { kThrow, kRunOutOfMemory, kCallScript } hookedDeed;

void Hook(const char* operation) {
  if (hookedOperation == nullptr || std::strcmp(operation, hookedOperation) != 0) return;
  if (hookedDeed == Deed::kThrow) throw std::runtime_error("the SDK broke");
  if (hookedDeed == Deed::kRunOutOfMemory) throw std::bad_alloc();
  hookedOperation = nullptr;
  luavelora::downloadHandler.onProgress(operation);
}

class Hostile : public VeloraTest {
 protected:
  void SetUp() override {
    VeloraTest::SetUp();
    offline::SetCallHook(Hook);
    hookedOperation = nullptr;
    host = std::make_unique<Host>();
    host->Run(R"(
      order, share, product = velora.OrderInfo.new('o'), velora.ShareInfo.new('s'), velora.ProductInfo.new()
      function noop() end
      -- Runs `action` whenever the collector finishes a cycle, which it does at every chance, until `stop` is called.
      function haunt(action)
        local function plant() setmetatable({}, {__gc = function() if action then plant() action() end end}) end
        function stop() action = nil collectgarbage('setpause', 200) collectgarbage('setstepmul', 200) end
        collectgarbage('setpause', 0) collectgarbage('setstepmul', 1000000)
        pcall(plant)
      end
      -- Calls every function of the module in many ways; errors are the caller's own business.
      function callAll(o, s, p)
        for name, f in pairs(velora) do
          if type(f) == 'function' then
            pcall(f) pcall(f, o) pcall(f, s) pcall(f, {1.5, 2.5, k = 1.5}) pcall(f, 1.5, {1.5, 'x'})
            pcall(f, 1.5, 2.5) pcall(f, 1.5, 1) pcall(f, 1.5, 1, 2, 3.5, 4.5) pcall(f, 1.5, 2.5, true)
          elseif type(f) == 'table' then
            for key, g in pairs(f) do
              if key ~= '__gc' then
                for _, self in ipairs{o, s, p} do
                  pcall(g, self, 1.5) pcall(g, self, {1.5, 2.5, k = 1.5}) pcall(g, self)
                end
                pcall(g, 1.5, 2, 3, 4, 5, 6, 7.5)
              end
            end
          end
        end
      end)");
  }

  void TearDown() override {
    offline::SetCallHook(nullptr);
    host.reset();
    VeloraTest::TearDown();
  }

  // While the collector rests, since what haunts may raise in any script.
  void StopHaunting() {
    lua_gc(host->L, LUA_GCSTOP, 0);
    EXPECT_EQ(host->Run("stop()"), "");
    lua_gc(host->L, LUA_GCRESTART, 0);
  }

  // The host still works.
  void ExpectSound() {
    EXPECT_EQ(host->Run("local o = velora.OrderInfo.new('after') o:set_count(3) velora.setOnExitApp(noop) "
                        "return o:get_productId(), o:get_count(), velora.getOnExitApp() == noop"),
              "\"after\", 3, true");
    EXPECT_EQ(lua_gettop(host->L), 0);
  }

  std::unique_ptr<Host> host;
};

TEST_F(Hostile, FinalisersThatRaiseOrInterfereWhileTheModuleWorks) {
  for (const char* action : {
           "error('finaliser')",
           "error({})",
           "share:set_textMsg{a = 'b'} share:set_toUserList{'x'} product:set_sdkPids{c = 'd'} order:set_aid('z')",
           "velora.OrderInfo.__gc(order) velora.ShareInfo.__gc(share) velora.ProductInfo.__gc(product)",
           "velora.zvShare(share) velora.zvCheckOrder(order) velora.OrderInfo.regProduct(product)",
           "velora.setOnLoginDone(print) velora.download.setSyncDownloadHandler()",
           "velora.download.setSyncDownloadHandler{onInited = noop, onProgress = noop, onFinish = noop}",
       }) {
    host->Run(
        "order, share, product = velora.OrderInfo.new('o'), velora.ShareInfo.new('s'), velora.ProductInfo.new() "
        "share:set_textMsg{k = 'v'} share:set_toUserList{'a', 'b'} product:set_sdkPids{k = 'v'}");
    host->Run(std::string("haunt(function() ") + action + " end) pcall(callAll, order, share, product)");
    StopHaunting();
    ExpectSound();
  }
}

TEST_F(Hostile, TablesThatChangeWhileTheyAreRead) {
  EXPECT_EQ(
      host->Run("local t t = setmetatable({'a', 'b', 'c'}, {__len = function() for k in pairs(t) do t[k] = nil end "
                "return 3 end}) velora.zvDeleteInviters(t) share:set_toUserList(t) return share:get_toUserList()"),
      "{}");
  EXPECT_EQ(host->Run("share:set_toUserList(setmetatable({'a'}, {__len = function() share:set_toUserList{'inner'} "
                      "return 1 end})) return share:get_toUserList()"),
            "{[1]=\"a\"}");
  EXPECT_EQ(host->Run("share:set_toUserList(setmetatable({'a'}, {__len = function() velora.ShareInfo.__gc(share) "
                      "return 1 end})) return share:get_toUserList()"),
            "");
  EXPECT_EQ(host->Run("local t = {} for i = 1, 100 do t[i] = i + 0.5 end haunt(function() for k in pairs(t) "
                      "do t[k] = nil end end) velora.zvDeleteInviters(t) product:set_sdkPids(t)"),
            "");
  StopHaunting();
  EXPECT_EQ(host->Run("local t = {} t[1], t.k, t[t] = t, t, t velora.zvDeleteInviters(t) velora.zvDisplayQuests(t) "
                      "product:set_sdkPids(t) product:set_jellRatios(t) return product:get_sdkPids(), "
                      "product:get_jellRatios()"),
            "{}, {\"1\"=0, \"k\"=0}");
  ExpectSound();
}

// Each event layout, while every allocation may run a finaliser that raises: the error is a script's error.
TEST_F(Hostile, FinalisersThatRaiseWhileThePumpBuildsArguments) {
  host->Run(
      "seen = 0 for name, f in pairs(velora) do if name:find('^setOn') then f(function() seen = seen + 1 end) end end "
      "haunt(function() error('from the grave', 0) end)");
  constexpr int kEvents = 50;
  for (int i = 0; i < kEvents; ++i) {
    auto event = std::make_shared<AccountListEvent>(41);
    event->accounts = {offline::MakeAccount({}), offline::MakeAccount({})};
    offline::Post(event);
    auto texts = std::make_shared<TextListEvent>(47);
    texts->texts = {"a", "b"};
    offline::Post(texts);
  }
  EXPECT_EQ(host->Frame(), "");
  StopHaunting();
  const auto lines = offline::TakeLog();
  EXPECT_GT(lines.size(), 0u);
  for (const std::string& line : lines)
    EXPECT_EQ(line, "[VELORA] 0 [Velora callback err] error in __gc metamethod (from the grave)");
  // Every event either reached its callback or is accounted for by a line.
  EXPECT_EQ(std::stoul(host->Run("return seen")) + lines.size(), 2u * kEvents);
  ExpectSound();
}

TEST_F(Hostile, CallbacksThatMisbehave) {
  for (const char* body : {
           "error({})",
           "error(nil)",
           "local function deep(n) if n == 0 then error('deep') end return deep(n - 1) + 1 end deep(10000)",
           "local function overflow() return overflow() + 1 end overflow()",
           "local function nest() return select(2, string.gsub('x', 'x', nest)) end nest()",
           "local function nest() local ok, e = pcall(nest) if not ok then error(e, 0) end end nest()",
           "collectgarbage() collectgarbage('stop') collectgarbage('restart')",
           "velora.setOnLoginDone(print) velora.setOnLoginDone(f)",
           "local v = velora velora = nil collectgarbage() velora = v",
           "coroutine.yield()",
           "setmetatable(_G, {__index = error})",
           "error(setmetatable({}, {__tostring = function() error('worse') end}))",
           "error(('x'):rep(1000000))",
       }) {
    host->Run(std::string("f = function() ") + body + " end velora.setOnLoginDone(f)");
    for (int i = 0; i < 2; ++i) offline::Post(std::make_shared<CodeEvent>(15));
    EXPECT_EQ(host->Frame(), "") << body;
    EXPECT_EQ(host->Run("setmetatable(_G, nil)"), "");
    ExpectSound();
  }
}

// No C++ exception of the SDK reaches Lua as one.
TEST_F(Hostile, AnSdkThatThrows) {
  const char* const calls[][2] = {
      {"zvLogin", "velora.zvLogin()"},
      {"getChannel", "velora.getChannel()"},
      {"getPropStr", "velora.getPropStr('a', 'b')"},
      {"zvDisplayQuests", "velora.zvDisplayQuests{1}"},
      {"zvCheckOrder", "velora.zvCheckOrder(order)"},
      {"zvShare", "velora.zvShare(share)"},
      {"zvGetCheckedOrders", "velora.zvGetCheckedOrders()"},
      {"OrderInfo.New", "velora.OrderInfo.new('x')"},
      {"OrderInfo.get_aid", "order:get_aid()"},
      {"OrderInfo.set_count", "order:set_count(1)"},
      {"OrderInfo.get_sdkPids", "order:get_sdkPids()"},
      {"OrderInfo.regProduct", "velora.OrderInfo.regProduct(product)"},
      {"ShareInfo.set_textMsg", "tostring(share)"},
      {"ShareInfo.get_toUserList", "velora.ShareInfo.new()"},
      {"query", "velora.download.query()"},
      {"addSyncDownloadHandler",
       "velora.download.setSyncDownloadHandler{onInited = noop, onProgress = noop, onFinish = noop}"},
  };
  for (const auto& [operation, call] : calls) {
    hookedOperation = operation;
    hookedDeed = Deed::kThrow;
    EXPECT_NE(host->Run(call).find("the SDK broke"), std::string::npos) << call;
    hookedDeed = Deed::kRunOutOfMemory;
    EXPECT_NE(host->Run(call).find("not enough memory"), std::string::npos) << call;
    hookedOperation = nullptr;
    EXPECT_EQ(host->Run("return velora.download.getSyncDownloadHandler()"), "");
    ExpectSound();
  }
  hookedOperation = "SwapEvents";
  hookedDeed = Deed::kThrow;
  EXPECT_EQ(host->Frame(), "the SDK broke");
}

// The script's handler runs in the middle of a wrapper and finishes the very object in hand.
TEST_F(Hostile, AnSdkThatCallsScriptsInTheMiddleOfACall) {
  const char* const calls[][2] = {
      {"zvCheckOrder", "velora.zvCheckOrder(order)"},
      {"zvShare", "velora.zvShare(share)"},
      {"ShareInfo.set_linkParams", "velora.zvCheckArgs(share)"},
      {"ShareInfo.set_toUserList", "return tostring(share)"},
      {"OrderInfo.get_aid", "return order:get_aid()"},
      {"OrderInfo.set_aid", "order:set_aid('x')"},
      {"OrderInfo.toString", "return tostring(order)"},
      {"OrderInfo.obj2Json", "return order:obj2Json()"},
      {"OrderInfo.hasProduct", "return order:hasProduct()"},
      {"OrderInfo.set_arrPriceLocaleId", "order:set_arrPriceLocaleId{'x'}"},
      {"ShareInfo.set_shareData", "share:set_shareData{a = 'b'}"},
      {"OrderInfo.regProduct", "velora.OrderInfo.regProduct(product)"},
      {"ProductInfo.toString", "return tostring(product)"},
      {"getUserInfo", "return velora.getUserInfo('x')"},
      {"zvDeleteInviters", "velora.zvDeleteInviters{'x'}"},
  };
  for (const auto& [operation, call] : calls) {
    host->Run(R"(
      order, share, product = velora.OrderInfo.new('o'), velora.ShareInfo.new('s'), velora.ProductInfo.new()
      velora.OrderInfo.regProduct(product) product:set_sdkPids{a = 'b'} share:set_toUserList{'a'}
      ran = false
      velora.download.setSyncDownloadHandler{onInited = noop, onFinish = noop, onProgress = function()
        ran = true
        share:set_linkParams{k = 'v'} share:set_toUserList{'b'} product:set_sdkPids{}
        velora.OrderInfo.__gc(order) velora.ShareInfo.__gc(share) velora.ProductInfo.__gc(product)
        velora.download.setSyncDownloadHandler()
        collectgarbage()
        error('in the middle')
      end})");
    hookedOperation = operation;
    hookedDeed = Deed::kCallScript;
    host->Run(call);
    EXPECT_EQ(host->Run("return ran"), "true") << operation;
    EXPECT_EQ(host->Run("return order:get_aid(), share:get_title(), product:get_productId()"), "nil, nil") << operation;
    ExpectSound();
  }
  host->Run("order = nil share = nil product = nil collectgarbage()");
}

// Lua finalises nothing that is made while the state closes; what it owns is given back all the same.
TEST_F(Hostile, FinalisersThatMakeObjectsWhileTheStateCloses) {
  host = std::make_unique<Host>(false);
  const char* const make =
      "planted = {planted, setmetatable({}, {__gc = function() late = velora.OrderInfo.new('x') later = "
      "velora.ShareInfo.new() "
      "velora.ProductInfo.new():set_sdkPids{a = 'b'} tostring(late) velora.OrderInfo.get_aid(late) end})}";
  host->Run(make);
  InitLuaVelora(host->L);
  host->Run(make);
  host->Close();
  EXPECT_EQ(offline::LiveRecords(), 0u);
}

// With no memory for the call of a finaliser, Lua drops it; the record goes when the state closes.
TEST_F(Hostile, FinalisersThatFindNoMemory) {
  host->Run("for i = 1, 20 do velora.OrderInfo.new(i) end");
  lua_State* L = host->L;
  for (int depth = 0; depth < 50; ++depth) {
    lua_pushcfunction(L, [](lua_State* state) {
      memory::FailAfter(0);
      lua_gc(state, LUA_GCCOLLECT, 0);
      memory::Restore();
      return 0;
    });
    lua_pcall(L, 0, 0, 0);
    host->Run("local function nest(n) if n > 0 then return nest(n - 1), 1 end velora.AccountInfo.new() end nest(50)");
  }
  host->Close();
  EXPECT_EQ(offline::LiveRecords(), 0u);
}

// Finalisers that collect while the state closes run the module's own closing in the middle of what they do. No cycle
// may be under way then: Lua 5.3 itself loops for ever where lua_close interrupts a sweep and a finaliser collects.
TEST_F(Hostile, FinalisersThatCollectWhileTheStateCloses) {
  for (const char* action : {
           "local s = velora.ShareInfo.new('late') s:set_toUserList(setmetatable({'a'}, {__len = function() "
           "collectgarbage() return 1 end}))",
           "collectgarbage('restart') collectgarbage('setpause', 0) for i = 1, 50 do velora.OrderInfo.new('x') end",
           "local o = velora.OrderInfo.new('x') hooked() velora.zvCheckOrder(o) o:set_aid(1.5)",
       }) {
    host = std::make_unique<Host>();
    lua_register(host->L, "hooked", [](lua_State*) {
      hookedOperation = "zvCheckOrder";
      hookedDeed = Deed::kCallScript;
      return 0;
    });
    host->Run(
        "velora.download.setSyncDownloadHandler{onInited = print, onFinish = print, "
        "onProgress = function() collectgarbage() end}");
    host->Run(std::string("planted = setmetatable({}, {__gc = function() ") + action + " end})");
    lua_gc(host->L, LUA_GCCOLLECT, 0);
    lua_gc(host->L, LUA_GCSTOP, 0);
    host->Close();
    offline::Reset();
    EXPECT_EQ(offline::LiveRecords(), 0u) << action;
  }
}

// A finaliser that sets a handler of its own in the middle of setting one: whoever comes last wins, nothing is mixed.
TEST_F(Hostile, HandlersSetWhileAHandlerIsSet) {
  host->Run(
      "good = {onInited = noop, onProgress = noop, onFinish = noop} "
      "haunt(function() velora.download.setSyncDownloadHandler(good) end)");
  for (const char* call : {"velora.download.setSyncDownloadHandler()",
                           "pcall(velora.download.setSyncDownloadHandler, {onInited = print})"}) {
    for (int i = 0; i < 50; ++i) {
      host->Run(std::string(call) +
                " collectgarbage('stop') off = velora.download.getSyncDownloadHandler() == nil "
                "collectgarbage('restart')");
      EXPECT_EQ(luavelora::downloadHandler.state() == nullptr, offline::Handlers().empty()) << call;
    }
    lua_gc(host->L, LUA_GCSTOP, 0);
    EXPECT_EQ(host->Run(std::string(call) + " return velora.download.getSyncDownloadHandler()"), "") << call;
    EXPECT_TRUE(offline::Handlers().empty()) << call;
    lua_gc(host->L, LUA_GCRESTART, 0);
  }
  StopHaunting();
}

}  // namespace
}  // namespace tests
