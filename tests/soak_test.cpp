// An hour of game in a minute: memory must not grow.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <thread>

#include "tests/harness.h"

namespace tests {
namespace {

namespace offline = tarn::velora::offline;
using namespace tarn::velora;

using Soak = VeloraTest;

constexpr int kFrames = 200000;

// Returns the memory in use after the runtime's last event has arrived, without call and log lines that nobody took,
// the runtime's list of orders and the garbage of scripts. Each collection halves Lua's string table once.
long Settle(Host& host) {
  for (std::string received; received != host.Run("return total()");) {
    received = host.Run("return total()");
    for (int i = 0; i < 20; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
      EXPECT_EQ(host.Frame(), "");
    }
  }
  offline::TakeCalls();
  offline::TakeLog();
  offline::SetCheckedOrders({});
  host.Run("for _ = 1, 10 do collectgarbage() end");
  return memory::BytesInUse();
}

TEST_F(Soak, AnHourOfGameDoesNotGrow) {
  Host host;
  ASSERT_EQ(host.RunFile("soak.lua"), "");
  std::vector<std::shared_ptr<AccountInfo>> hundred;
  for (int i = 0; i < 100; ++i) hundred.push_back(offline::MakeAccount({{"nickname", "friend " + std::to_string(i)}}));
  long early = 0;
  for (int frame = 1; frame <= kFrames; ++frame) {
    if (frame % 60 == 0) {
      auto list = std::make_shared<AccountListEvent>(41);
      list->accounts = hundred;
      offline::Post(list);
    }
    lua_getglobal(host.L, "frame");
    lua_pushinteger(host.L, frame);
    ASSERT_EQ(lua_pcall(host.L, 1, 0, 0), LUA_OK) << lua_tostring(host.L, -1);
    UpdateLuaVelora(host.L);
    if (frame % 1000 == 0) {
      offline::TakeCalls();
      offline::TakeLog();
    }
    if (frame == kFrames / 10) early = Settle(host);
  }
  const long late = Settle(host);
  EXPECT_GT(std::stol(host.Run("return total()")), kFrames / 10);
  EXPECT_LE(late, early + early / 200) << "after the first tenth " << early << " bytes, at the end " << late;
}

// A script creates objects in a loop and drops them; Lua sees little of their memory.
TEST_F(Soak, GarbageThatOwnsMuchIsCollectedInTime) {
  static long peak;
  for (const auto& [script, megabytes] : {
           std::pair{"local image = ('x'):rep(1 << 20) for frame = 1, 400 do local share = velora.ShareInfo.new() "
                     "share:set_shareBitmap(image) velora.zvShare(share) measure() end",
                     64},
           {"for i = 1, 300000 do velora.OrderInfo.new('gold') if i % 100 == 0 then measure() end end", 160},
       }) {
    Host host;
    lua_register(host.L, "measure", [](lua_State* L) {
      UpdateLuaVelora(L);
      offline::TakeCalls();
      peak = std::max(peak, memory::BytesInUse());
      return 0;
    });
    peak = 0;
    const long before = memory::BytesInUse();
    EXPECT_EQ(host.Run(script), "");
    EXPECT_LE((peak - before) >> 20, megabytes) << script;
  }
}

}  // namespace
}  // namespace tests
