// Every function that a script sees, called with every combination of arguments that matters: what is refused makes no
// SDK call, what is accepted makes one, with the arguments as the SDK is to see them, and neither writes a log line.
#include <gtest/gtest.h>

#include "tests/harness.h"

namespace tests {
namespace {

namespace offline = tarn::velora::offline;

using Matrix = VeloraTest;

// The values; each with what it counts as.
const char* const kValues = R"(
  local finished = velora.OrderInfo.new('x') velora.OrderInfo.__gc(finished)
  local selfish = {} selfish[1] = selfish selfish.k = selfish
  local function claim(n) return setmetatable({'a', 'b'}, {__len = function() return n end}) end
  live = {O = velora.OrderInfo.new('o'), S = velora.ShareInfo.new(), Q = velora.QueryRankInfo.new(),
          P = velora.ProductInfo.new(), A = velora.AccountInfo.new()}
  values = {
    true, false, 0, 1, -1, 2^31 | 0, (2^31 | 0) - 1, -(2^31 | 0) - 1, 2^32 | 0, math.maxinteger, math.mininteger,
    0.5, 3.0, -0.0, 1e15, -1.5e-7, 3.14159265358979, 1e308, 1/0, -1/0, 0/0, '12', '0x10', ' 5 ', '1e3', 'text', '', 'a\0b', ('x'):rep(70000),
    {}, {'a', 2, 3.5}, {1, nil, 3}, {[1] = 'a', [2] = {}, x = 1}, {a = 'b', [1.5] = true}, selfish,
    claim(2), claim(-5), claim(0/0), claim('x'), claim(1 << 40), print, coroutine.create(print), light, io.stdout,
    finished, live.O, live.S, live.Q, live.P, live.A,
  }
  badLength = {[claim((1 << 20) + 1)] = true, [setmetatable({}, {__len = function() error('len') end})] = true,
               [claim(1 << 31 - 1)] = true}
  for t in pairs(badLength) do values[#values + 1] = t end
  none = {}                      -- stands for nil among the values
  values[#values + 1] = none
)";

// The wrappers by what they take: t text, i integer, n number, b boolean, l list, s strict list, O S Q records.
// c the command line, o an option's value. What stands behind these is of no interest to the function.
const char* const kSignatures = R"(
  signatures = {
    [''] = 'zvInit zvLogin zvLogout zvSwitchAccount zvOpenManager zvGameLoginSuccess zvUpLoadUserInfo ' ..
      'zvDoSdkRealNameRegister zvGuestBind exitApp zvOpenExitView zvOpenPauseView isInit hasLogin getChannel ' ..
      'getAppChannel getPlatform getAuthTypeName getUdid getChannelByImsi getChannelByImsiEx getCCTypeByImsi ' ..
      'getCmdLineParameter zvVerifyOrder zvPrePay zvQueryInventory zvGetCheckedOrders zvQueryFriendList ' ..
      'zvQueryAvailablesInvitees zvQueryMyAccount zvQueryFriendListInGame zvQueryInviterList zvIsDarenUpdated ' ..
      'zvMoreGame zvDisplayAchievement getLastShareMessage zvOpenNearby zvGetUsePushNotification zvConnectToChannel ' ..
      'zvDisConnectFromChannel zvShowConversation zvShowFAQs zvCCStartService zvCCStopService zvFlushCustomEvents ' ..
      'zvGetAnnouncementInfo zvCloseWebView zvCloseFlash zvOpenVespera zvHasNotification zvHasChannelConnected ' ..
      'isCCRecording isCCRecordMic getCCPerformance getCCWindowState zvGetChannelID zvSetFloatBtnVisible',
    t = 'getUserInfo getSDKVersion isBinded zvHasPlatform hasFeature zvAntiAddiction zvExtendFunc ' ..
      'zvvGenericFunctionCall zvCallbackSuccess zvCallbackFail zvJFLog getPropStr zvRemoveCheckedOrders ' ..
      'getFFChannelByPid DRPF zvApplyFriend zvDisplayLeaderboard zvShowWeb zvOpenWebView zvCollectEvent ' ..
      'zvSendLocalNotification zvSetZone zvSetUserIdentifier zvScannerQRCode zvPushGameVoice',
    tt = 'setUserInfo setPropStr zvUpdateApi zvInviteFriendList zvTrackCustomEvent',
    ti = 'setPropInt getPropInt zvUpdateAchievement zvUpdateEvent zvPresentQRCodeScanner',
    tn = 'zvUpdateRank', tb = 'zvSendProfile', ttb = 'setJFSauthWithKey', ttt = 'zvShowBoard',
    i = 'zvCancelLocalNotification zvSelectChannelOption zvVerifyMobile',
    b = 'zvSetUsePushNotification zvGetNotice zvShowCompactView',
    l = 'zvDeleteInviters zvShowRewardView zvDisplayQuests',
    tl = 'zvSendPushNotification', ts = 'zvQuerySkuDetails', tiit = 'zvCreateQRCode', to = 'zvLumoSetOption',
    c = 'setCmdLineParameter',
    O = 'zvCheckOrder zvConsume', S = 'zvShare zvCheckArgs', Q = 'zvQueryRank',
  }
  local function isText(v) return type(v) == 'string' or type(v) == 'number' end
  tests = {
    t = isText,
    i = function(v) return math.type(v) == 'integer' end,
    n = function(v) return type(v) ~= 'table' and tonumber(v) ~= nil end,
    b = function(v) return type(v) == 'boolean' end,
    l = function(v) return type(v) == 'table' and not badLength[v] end,
    s = function(v)
      if type(v) ~= 'table' then return false end
      for i = 1, rawlen(v) do if not isText(rawget(v, i)) then return false end end
      return true
    end,
    o = function(v) return isText(v) or type(v) == 'boolean' end,
    c = function(v) return v == nil or isText(v) end,
    O = function(v) return v == live.O end, S = function(v) return v == live.S end,
    Q = function(v) return v == live.Q end,
  }
  -- How a call line shows an argument of a kind; the other kinds, and the functions in `special`, have tests of their own.
  shown = {
    t = function(v) return '"' .. tostring(v):match('^[^\0]*') .. '"' end,
    i = function(v) return ('%d'):format((v + (1 << 31) & 0xffffffff) - (1 << 31)) end,
    n = function(v) return ('%.14g'):format(tonumber(v)) end,
    b = tostring,
    O = function() return 'OrderInfo("o")' end, S = function() return 'ShareInfo()' end,
    Q = function() return 'QueryRankInfo()' end,
  }
  special = {getPropStr = true, zvSetFloatBtnVisible = true, zvPushGameVoice = true, zvCreateQRCode = true}
)";

// Walks the combinations: all of up to two values, and a pseudo-random choice of the longer ones.
const char* const kWalk = R"(
  local function plain(v) if v == none then return nil end return v end
  local seed = 1
  local function random(n) seed = (seed * 1103515245 + 12345) % 2147483648 return seed // 65536 % n + 1 end

  function walk(f, longest, check)
    check()
    for i = 1, #values do
      local a = plain(values[i])
      check(a)
      if longest > 1 then for j = 1, #values do check(a, plain(values[j])) end end
    end
    for _ = 1, longest > 2 and 1500 or 0 do
      local args = {}
      -- Half of them begin well, so that the later tests are reached.
      local good = random(2) == 1
      for k = 1, longest + 1 do args[k] = plain(values[random(#values)]) end
      if good then args[1] = 'text' if longest > 3 then args[2], args[3] = 5, 6 end end
      check(table.unpack(args, 1, longest + 1))
    end
  end
)";

void Prepare(Host& host) {
  lua_pushlightuserdata(host.L, &host);
  lua_setglobal(host.L, "light");
  // The calls since the last time: their number and the first one's line.
  lua_register(host.L, "calls", [](lua_State* L) {
    luaL_checkstack(L, LUA_MINSTACK, nullptr);
    const auto lines = offline::TakeCalls();
    lua_pushinteger(L, static_cast<lua_Integer>(lines.size()));
    if (lines.empty()) return 1;
    lua_pushlstring(L, lines[0].data(), lines[0].size());
    return 2;
  });
  for (const char* chunk : {kValues, kSignatures, kWalk}) EXPECT_EQ(host.Run(chunk), "");
  offline::TakeCalls();
}

TEST_F(Matrix, WrappersCallTheSdkForGoodArgumentsOnly) {
  Host host;
  Prepare(host);
  EXPECT_EQ(host.Run(R"(
    local checked = 0
    for signature, names in pairs(signatures) do
      for name in names:gmatch('%S+') do
        local f = velora[name]
        local function check(...)
          local accepted, line = true, not special[name] and {}
          for k = 1, #signature do
            local kind, v = signature:sub(k, k), (select(k, ...))
            if not tests[kind](v) then accepted = false break end
            line = line and shown[kind] and line
            if line then line[k] = shown[kind](v) end
          end
          if signature == 'c' and select('#', ...) > 1 and (...) ~= nil then accepted = false end
          local ok, result = pcall(f, ...)
          -- What is refused raises nothing, but for lists, options and the command line.
          local a, b = ...
          local raises = not accepted and (signature == 'l' or signature == 'c' or
            (signature == 'tl' or signature == 'ts') and tests.t(a) and type(b) == 'table' or
            signature == 'to' and tests.t(a) and select('#', ...) > 1)
          assert(ok == not raises and (accepted or raises or result == nil or name == 'hasFeature'), name)
          checked = checked + 1
          local made, call = calls()
          local expected = line and name .. '(' .. table.concat(line, ', ') .. ')'
          if made ~= (accepted and 1 or 0) or accepted and expected and call ~= expected then
            local given = table.pack(...)
            for k = 1, given.n do given[k] = tostring(given[k]):sub(1, 30) end
            error(('%s(%s) made %d calls: %s'):format(name, table.concat(given, ', '), made, call))
          end
        end
        walk(f, #signature, check)
      end
    end
    return checked > 20000)"),
            "true");
  EXPECT_TRUE(offline::TakeLog().empty());
}

TEST_F(Matrix, EveryOtherFunctionBearsEveryArgument) {
  Host host;
  Prepare(host);
  EXPECT_EQ(host.Run(R"(
    for name, class in pairs(velora) do
      if type(class) == 'table' then
        for key, f in pairs(class) do
          if key ~= '__gc' then walk(f, key == 'new' and 1 or 2, function(...) pcall(f, ...) end) end
        end
      elseif name:find('^[sg]etOn') then
        walk(class, 1, function(...) pcall(class, ...) end)
      end
    end
    for _, class in ipairs{'OrderInfo', 'ShareInfo', 'QueryRankInfo', 'ProductInfo', 'AccountInfo', 'PadEvent'} do
      for _, v in ipairs(values) do velora[class].__gc(v) end
    end)"),
            "");
  EXPECT_TRUE(offline::TakeLog().empty());
}

}  // namespace
}  // namespace tests
