// An hour of game in a minute: memory must not grow.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "tests/harness.h"

namespace tests {
namespace {

namespace offline = tarn::velora::offline;
using namespace tarn::velora;

using Soak = VeloraTest;

constexpr int kFrames = 200000;

// One frame of a game, by its number.
const char* const kGame = R"(
  local received, friends, last = 0, {}, nil
  local function count() received = received + 1 end
  for name, set in pairs(velora) do if name:find('^setOn') then set(count) end end
  velora.setOnQueryFriendListFinished(function(accounts)
    count()
    friends = accounts
    for i = 1, #accounts, 10 do last = accounts[i]:get_nickname() .. tostring(accounts[i]) end
  end)
  velora.setOnOrderCheckDone(function(order) count() velora.zvConsume(order) if order:get_count() > 2 then error('bad order') end end)
  local product = velora.ProductInfo.new()
  function frame(n)
    velora.setPropStr('FRAME', n)
    if n % 50 == 0 then velora.zvLogin() end
    if n % 50 == 25 then velora.zvLogout() end
    if n % 10 == 3 then
      local order = velora.OrderInfo.new('gold.' .. n % 7)
      order:set_count(n % 4)
      order:set_userData(('x'):rep(n % 300))
      velora.zvCheckOrder(order)
    end
    if n % 20 == 7 then
      local share = velora.ShareInfo.new()
      share:set_linkParams{frame = n, kind = 'soak'}
      share:set_toUserList{'anna', 'ben', n}
      velora.zvShare(share)
    end
    if n % 30 == 11 then
      product:set_productId('gold.' .. n % 7)
      product:set_sdkPids{store = n}
      velora.OrderInfo.regProduct(product)
      velora.OrderInfo.getProductList()
    end
    if n % 40 == 13 then pcall(velora.zvShowRewardView) pcall(velora.OrderInfo.new, {}) end
    if n % 1000 == 0 then collectgarbage() end
  end
  function total() return received end)";

// All memory in use once the answers on their way have come; lines that nobody took, scripts' garbage and the room that
// the fullest moment needed aside: the runtime's list of orders goes, each collection halves Lua's string table once.
long Settle(Host& host) {
  for (int i = 0; i < 20; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    EXPECT_EQ(host.Frame(), "");
  }
  offline::TakeCalls();
  offline::TakeLog();
  offline::SetCheckedOrders({});
  host.Run("for _ = 1, 10 do collectgarbage() end");
  return memory::BytesInUse();
}

TEST_F(Soak, AnHourOfGameDoesNotGrow) {
  Host host;
  ASSERT_EQ(host.Run(kGame), "");
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
  EXPECT_LE(late, early + early / 100) << "after the first tenth " << early << " bytes, at the end " << late;
}

}  // namespace
}  // namespace tests
