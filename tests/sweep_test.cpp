// Lets memory run out at every single allocation, Lua's and C++'s alike, and looks for what is lost or broken.
#include <gtest/gtest.h>

#include "download/handler.h"
#include "tests/harness.h"

namespace tests {
namespace {

namespace offline = tarn::velora::offline;

using Sweep = VeloraTest;

// What is prepared with memory, what runs while it runs out, and the events that then wait for the frame.
struct Scenario {
  const char* name;
  const char* prepare;
  const char* run;
  void (*post)();
};

// One event of each layout that takes memory.
void PostEveryLayout() {
  for (int type : {0, 5, 7, 8, 10, 17, 26, 29, 41, 43, 47, 59}) offline::Post(MakeEvent(type, true));
}

const char* const kCallEverySetterAndGetter = R"(
  for name, class in pairs(velora) do
    if type(class) == 'table' and objects[name] then
      local object = objects[name]
      for key, f in pairs(class) do
        if key:find('^set_') then
          if not pcall(f, object, {a = 1, [2] = 'x'}) then pcall(f, object, 'text') end
          pcall(f, object, 1.5) pcall(f, object, {'a', 5.5})
        elseif key:find('^get_') or key == 'obj2Json' or key == 'produceCartInfo' then
          f(object)
        end
      end
      tostring(object)
    end
  end)";

const char* const kMakeObjects = R"(
  objects = {ProductInfo = velora.ProductInfo.new(), OrderInfo = velora.OrderInfo.new('a'),
    QueryRankInfo = velora.QueryRankInfo.new(), ShareInfo = velora.ShareInfo.new('s'),
    AccountInfo = velora.AccountInfo.new('me'), SkuDetailsInfo = velora.SkuDetailsInfo.new(1, 2, 3, 4, 5, 6, 7)}
  objects.ProductInfo:set_productId('p') objects.ProductInfo:set_sdkPids{a = 'b'}
  objects.ShareInfo:set_textMsg{a = 'b'} objects.ShareInfo:set_toUserList{'a'} objects.ShareInfo:set_shareData{a = 'b'}
  velora.OrderInfo.regProduct(objects.ProductInfo)
  for _, o in pairs(objects) do tostring(o) end)";

const Scenario kScenarios[] = {
    {"wrappers", kMakeObjects, R"(
        local good = {objects.OrderInfo, objects.ShareInfo, objects.QueryRankInfo, {'a', 2.5}, {a = 1}, 'text', 1.5, 7}
        for name, f in pairs(velora) do
          if type(f) == 'function' and not name:find('^[sg]etOn') then
            pcall(f)
            for _, a in ipairs(good) do pcall(f, a) pcall(f, 1.5, a) end
            pcall(f, 'a', 'b', true) pcall(f, 'a', 1, 2, 'b', 'c') pcall(f, 1.5, {2.5, 'b'}) pcall(f, 'a', 1)
          end
        end)",
     nullptr},
    {"callbacks", "", R"(
        for name, f in pairs(velora) do if name:find('^setOn') then f(print) end end
        for name, f in pairs(velora) do if name:find('^getOn') then f() end end)",
     nullptr},
    {"events", "for name, f in pairs(velora) do if name:find('^setOn') then f(function(...) last = {...} end) end end",
     "", PostEveryLayout},
    {"failing callbacks",
     "for name, f in pairs(velora) do if name:find('^setOn') then f(function() error(1.5 .. 'x') end) end end", "",
     PostEveryLayout},
#if !defined(_WIN32)  // where unwinding so many frames takes too long
    // A handler that is called while a message handler runs has the least room of the C stack.
    {"overflowing handlers", R"(
        function nest() return select(2, string.gsub('x', 'x', nest)) end
        velora.download.setSyncDownloadHandler{onInited = print, onFinish = print, onProgress = nest})",
     "xpcall(nest, report)", nullptr},
#endif
    {"constructors and registry", "", R"(
        local p = velora.ProductInfo.new() p:set_sdkPids{a = 'b'} p:set_productId(1.5) velora.OrderInfo.regProduct(p)
        velora.OrderInfo.regProduct(2.5) velora.OrderInfo.hasProduct(1.5) velora.OrderInfo.setProductType(1.5, 2)
        velora.OrderInfo.getProductType(1.5) velora.OrderInfo.getProductList()
        velora.SkuDetailsInfo.new(1.5, 2, 3, 4, 5, 6, 7) velora.OrderInfo.new(1.5) velora.QueryRankInfo.new()
        velora.QueryRankInfo.new(1.5) velora.AccountInfo.new() velora.AccountInfo.new(1.5) velora.ShareInfo.new()
        local share = velora.ShareInfo.new(1.5) velora.zvCheckArgs(share) velora.zvShare(share) velora.zvGetCheckedOrders())",
     nullptr},
    {"accessors", kMakeObjects, kCallEverySetterAndGetter, nullptr},
    {"download", "handler = {onInited = print, onProgress = function() end, onFinish = function() end}", R"(
        velora.download.setSyncDownloadHandler(handler) velora.download.getSyncDownloadHandler()
        pcall(velora.download.setSyncDownloadHandler, {}) velora.download.query() velora.download.extendFunc(1.5)
        velora.download.getDownloadSDKVersion() velora.download.getOrbitSessionId() velora.download.init()
        velora.download.disableDownloadFinish2() velora.download.setSyncDownloadHandler(handler))",
     nullptr},
};

// The handler's operations that have not returned.
int operations = 0;

int Report(lua_State*) {
  ++operations;
  luavelora::downloadHandler.onProgress("50");
  --operations;
  return 0;
}

// One run with `allowed` allocations; true when they were enough.
bool RunOnce(const Scenario& scenario, long allowed) {
  Host host;
  lua_register(host.L, "report", Report);
  EXPECT_EQ(host.Run(scenario.prepare), "");
  if (scenario.post != nullptr) scenario.post();
  lua_State* L = host.L;
  EXPECT_EQ(luaL_loadstring(L, scenario.run), LUA_OK);
  lua_pushcfunction(L, [](lua_State* state) {
    UpdateLuaVelora(state);
    DeinitLuaVelora(state);
    return 0;
  });
  memory::FailAfter(allowed);
  const int firstTop = lua_gettop(L);
  lua_pushvalue(L, -2);
  lua_pcall(L, 0, 0, 0);
  lua_settop(L, firstTop);
  lua_pcall(L, 0, 0, 0);
  luavelora::downloadHandler.onInited();
  luavelora::downloadHandler.onProgress("50");
  luavelora::downloadHandler.onFinish("done", "bytes", 5);
  const bool enough = !memory::Restore();
  EXPECT_EQ(operations, 0);
  lua_settop(L, 0);
  EXPECT_EQ(host.Run("for _ = 1, 2 do collectgarbage() end return type(velora.isInit()), "
                     "velora.OrderInfo.new('after'):get_productId()"),
            "\"boolean\", \"after\"");
  EXPECT_EQ(host.Frame(), "");
  return enough;
}

TEST_F(Sweep, NothingIsLostWhereverMemoryRunsOut) {
  for (const Scenario& scenario : kScenarios) {
    long allowed = 0;
    while (!RunOnce(scenario, allowed)) {
      ASSERT_EQ(memory::LuaBlocksInUse(), 0) << scenario.name << " after " << allowed;
      offline::Reset();
      ASSERT_EQ(offline::LiveRecords(), 0u) << scenario.name << " after " << allowed;
      ++allowed;
    }
    EXPECT_GT(allowed, 3) << scenario.name;
    RecordProperty(scenario.name, static_cast<int>(allowed));
  }
}

TEST_F(Sweep, AFailedInitLosesNothingAndCanBeCalledAgain) {
  bool published = false;  // seen with its functions before its classes stood
  for (long allowed = 0;; ++allowed) {
    Host host(false);
    lua_pushcfunction(host.L, [](lua_State* L) {
      InitLuaVelora(L);
      return 0;
    });
    memory::FailAfter(allowed);
    lua_pcall(host.L, 0, 0, 0);
    const bool enough = !memory::Restore();
    lua_settop(host.L, 0);
    published |= host.Run("return velora ~= nil and velora.zvInit ~= nil and velora.ProductInfo == nil") == "true";
    // No object comes of a class that is not registered yet.
    offline::Post(MakeEvent(10, true));
    host.Run(
        "pads = 0 if velora and not velora.PadEvent then velora.setOnControllerStateEvent(function(pad) "
        "pads = pads + (pad and getmetatable(pad) ~= false and 1 or 0) end) end");
    ASSERT_EQ(host.Frame(), "");
    InitLuaVelora(host.L);
    ASSERT_EQ(host.Run("local n = 0 for _ in pairs(velora) do n = n + 1 end return n, "
                       "velora.OrderInfo.new('a'):get_productId(), getmetatable(velora.ProductInfo.new()), pads"),
              "984, \"a\", false, 0");
    if (enough) break;
  }
  EXPECT_TRUE(published);
}

}  // namespace
}  // namespace tests
