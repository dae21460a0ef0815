// Lets memory run out at every single allocation of Lua and of C++, and checks that nothing leaks or breaks.
#include <gtest/gtest.h>

#include <set>

#include "download/handler.h"
#include "tests/harness.h"

namespace tests {
namespace {

namespace offline = tarn::velora::offline;

using Sweep = VeloraTest;

// A chunk that runs with enough memory, and the function of sweep.lua that runs out of it.
struct Scenario {
  const char* prepare;
  const char* run;
};

const Scenario kScenarios[] = {
    {"fill()", "wrappers"},
    {"", "callbacks"},
    {"listen(function(...) last = {...} end) post()", "nothing"},
    {"listen(function() error(1.5 .. 'x') end) post()", "nothing"},
    {"velora.setOnOrderCheckDone(function() end) plant() post()", "restart"},
    {"", "constructorsAndRegistry"},
    {"fill()", "accessors"},
    {"", "download"},
    // A handler that is called while a message handler runs has the least room of the C stack.
    {"handler.onProgress = nest velora.download.setSyncDownloadHandler(handler) makeRoom()", "overflow"},
};

// The handler's operations that have not returned.
int operations = 0;

int Report(lua_State*) {
  ++operations;
  luavelora::downloadHandler.onProgress("50");
  --operations;
  return 0;
}

// Queues one event of each layout.
int Post(lua_State*) {
  std::set<std::string> posted;
  for (const EventRow& row : kEventRows) {
    if (posted.insert(row.layout).second) offline::Post(row.make(row.type, true));
  }
  return 0;
}

// Runs a scenario with `allowed` allocations and returns whether they were enough.
bool RunOnce(const Scenario& scenario, long allowed) {
  Host host;
  lua_State* L = host.L;
  lua_register(L, "report", Report);
  lua_register(L, "post", Post);
  for (const char* file : {"objects.lua", "sweep.lua"}) EXPECT_EQ(host.RunFile(file), "");
  offline::SetCheckedOrders({offline::MakeOrder({})});
  for (const char* query : {"getLastShareMessage", "OrderInfo.obj2Json"})
    offline::SetAnswer(query, std::string(300, 'x'));
  EXPECT_EQ(host.Run(scenario.prepare), "");
  lua_getglobal(L, scenario.run);
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
  host.Run("for _ = 1, 3 do pcall(collectgarbage) end");
  EXPECT_EQ(host.Run("return keepsStopped or collectgarbage('isrunning'), "
                     "type(velora.isInit()), velora.OrderInfo.new('after'):get_productId()"),
            "true, \"boolean\", \"after\"");
  EXPECT_EQ(host.Frame(), "");
  return enough;
}

TEST_F(Sweep, NothingIsLostWhereverMemoryRunsOut) {
  for (const Scenario& scenario : kScenarios) {
    long allowed = 0;
    while (!RunOnce(scenario, allowed)) {
      ASSERT_EQ(memory::LuaBlocksInUse(), 0) << scenario.run << scenario.prepare << " after " << allowed;
      offline::Reset();
      ASSERT_EQ(offline::LiveRecords(), 0u) << scenario.run << scenario.prepare << " after " << allowed;
      ++allowed;
    }
    EXPECT_GT(allowed, 3) << scenario.run << scenario.prepare;
  }
}

TEST_F(Sweep, AFailedInitLosesNothingAndCanBeCalledAgain) {
  const char* const kCount = "local n = 0 for _ in pairs(velora) do n = n + 1 end return n";
  const std::string names = std::make_unique<Host>()->Run(kCount);
  bool published = false;  // seen with its functions before its classes stood
  // More entries in the registry let it grow at another place.
  for (long entries = 0, allowed = 0; entries < 5; ++allowed) {
    Host host(false);
    for (long k = 0; k < entries; ++k) {
      lua_pushboolean(host.L, 1);
      lua_setfield(host.L, LUA_REGISTRYINDEX, std::to_string(k).c_str());
    }
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
    ASSERT_EQ(host.Run("pads = pads == 0 collectgarbage() " + std::string(kCount)), names);
    host.Run("velora.setOnControllerStateEvent(function(pad) x = pad:get_x() end)");
    offline::Post(MakeEvent(10, true));
    ASSERT_EQ(host.Frame(), "");
    ASSERT_EQ(host.Run("local v = velora return pads, x, v.OrderInfo.new('a'):get_count(), "
                       "v.ProductInfo.new():get_productPrice(), v.QueryRankInfo.new():get_count(), "
                       "v.ShareInfo.new():get_linkParams(), v.AccountInfo.new():get_rank(), "
                       "v.SkuDetailsInfo.new(1, 2, 3, 4, 5, 6, 7):get_price()"),
              "true, 0.0, 0, 0.0, 0, {}, 0, \"2\"")
        << allowed << " allowed, " << entries << " entries";
    if (enough) ++entries, allowed = -1;
  }
  EXPECT_TRUE(published);
}

}  // namespace
}  // namespace tests
