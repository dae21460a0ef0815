// The three entry points, the shape of the table `velora`, and the six binding helpers.
#include <gtest/gtest.h>

#include "platform/binding_helpers.h"
#include "tests/harness.h"

namespace tests {
namespace {

namespace offline = tarn::velora::offline;

using EntryPoints = VeloraTest;

TEST_F(EntryPoints, InitPublishesExactlyTheNamedKeys) {
  Host host;
  EXPECT_EQ(host.Run("local n, kinds = 0, {} for k, v in pairs(velora) do n = n + 1 local t = math.type(v) or type(v) "
                     "kinds[t] = (kinds[t] or 0) + 1 end return n, kinds"),
            "984, {\"function\"=235, \"integer\"=211, \"string\"=529, \"table\"=9}");
  EXPECT_EQ(host.Run("local n = {} for k, v in pairs(velora) do if type(v) == 'table' then n[k] = 0 for _ in pairs(v) "
                     "do n[k] = n[k] + 1 end end end return n"),
            "{\"AccountInfo\"=23, \"OrderInfo\"=88, \"PadEvent\"=11, \"ProductInfo\"=21, \"QueryRankInfo\"=9, "
            "\"ShareInfo\"=75, \"SkuDetailsInfo\"=17, \"download\"=8, \"utils\"=0}");
  EXPECT_EQ(
      host.Run("return velora.PadEvent.new, velora.OrderInfo.ORDER_S_PREPARING, velora.ShareInfo.SHARE_TYPE_LINK, "
               "velora.QueryRankInfo.QUERY_RANK_TYPE_SCORE, getmetatable(velora)"),
      "nil, nil, nil, nil, nil");
}

// The runtime's texts tell whose they are, and its numbers are all different, from 1000 on.
TEST_F(EntryPoints, ConstantsHoldTheSdksValues) {
  Host host;
  EXPECT_EQ(host.Run("local seen, n = {}, 0 for k, v in pairs(velora) do "
                     "if type(v) == 'string' then assert(v == ('velora.' .. k):lower(), k) end "
                     "if math.type(v) == 'integer' and v >= 1000 then assert(not seen[v], k) seen[v], n = k, n + 1 end "
                     "end return n, velora.AUTH_UNLOGIN, velora.C_MAX_PRICE"),
            "123, -1, 9999");
  EXPECT_EQ(host.Run("return velora.LOGIN_DONE_VELORA_BIND_FAIL, velora.PAD_ACTION_PRESSURE, "
                     "velora.CODE_SCANNER_PERMISSIONS_DENY, velora.FINISH_INIT_MISSED, velora.PAD_KEYCODE_RIGHT_STICK, "
                     "velora.ORDER_S_SDK_CHANNEL_IN_BLACKLIST, velora.PRODUCT_TYPE_PROMOCODE"),
            "-130, -1, 4, 3, 201, 430, 4");
}

TEST_F(EntryPoints, DeinitEmptiesTheSlotsAndNothingElse) {
  Host host;
  host.Run("for k, v in pairs(velora) do if k:find('^setOn') then v(print) end end order = velora.OrderInfo.new(1)");
  EXPECT_EQ(host.Run("return velora.getOnLoginDone() == print, velora.getOnDownloadFinish2() == print"), "true, true");
  DeinitLuaVelora(host.L);
  EXPECT_EQ(lua_gettop(host.L), 0);
  EXPECT_EQ(host.Run("for k, v in pairs(velora) do if k:find('^getOn') and select('#', v()) > 0 then return k end end"),
            "");
  EXPECT_EQ(host.Run("velora.setOnLoginDone(function(code) got = code end) return order:get_productId()"), "\"1\"");
  auto event = std::make_shared<tarn::velora::CodeEvent>(15);
  event->code = 3;
  offline::Post(event);
  EXPECT_EQ(host.Frame(), "");
  EXPECT_EQ(host.Run("return got"), "3");
  EXPECT_TRUE(offline::TakeLog().empty());
}

// Nothing is made, so no finaliser runs.
TEST_F(EntryPoints, DeinitRaisesNoErrorOfAFinaliser) {
  Host host;
  host.Run(
      "collectgarbage('stop') collectgarbage('setpause', 0) collectgarbage('setstepmul', 1000000) "
      "setmetatable({}, {__gc = function() error('from the grave') end})");
  lua_pushcfunction(host.L, [](lua_State* L) {
    lua_gc(L, LUA_GCRESTART, 0);
    DeinitLuaVelora(L);
    lua_gc(L, LUA_GCSTOP, 0);
    return 0;
  });
  EXPECT_EQ(lua_pcall(host.L, 0, 0, 0), LUA_OK);
}

TEST_F(EntryPoints, ASecondInitKeepsOlderObjectsAndCallbacks) {
  Host host;
  host.Run("old = velora; order = velora.OrderInfo.new('gold'); velora.setOnLoginDone(print)");
  InitLuaVelora(host.L);
  EXPECT_EQ(lua_gettop(host.L), 0);
  EXPECT_EQ(host.Run("return old ~= velora, velora.OrderInfo.get_productId(order), old.OrderInfo.get_productId(order), "
                     "order:get_productId(), velora.getOnLoginDone() == print"),
            "true, \"gold\", \"gold\", \"gold\", true");
  host.Run("order = nil collectgarbage()");
  EXPECT_EQ(offline::LiveRecords(), 0u);
}

TEST_F(EntryPoints, UpdateBeforeInitDropsEvents) {
  Host host(false);
  offline::Post(std::make_shared<tarn::velora::PlainEvent>(4));
  EXPECT_EQ(host.Frame(), "");
  EXPECT_TRUE(offline::TakeLog().empty());
}

// What the registry keeps is named by text, so that other carriers of the helpers see the same.
TEST_F(EntryPoints, HelpersKeepTheirContract) {
  Host host(false);
  lua_State* L = host.L;
  lua_newtable(L);
  lua_pushcfunction(L, [](lua_State* state) {
    ++*static_cast<int*>(FromUserType(state, 1));
    return 0;
  });
  lua_setfield(L, -2, "__gc");
  InitUserTypeMetaTable(L, "TestClass");
  EXPECT_EQ(lua_gettop(L), 1);
  EXPECT_TRUE(lua_istable(L, 1));
  int collected = 0;
  ToUserType(L, &collected, "TestClass");
  ToUserType(L, &collected, "TestClass");
  EXPECT_FALSE(lua_rawequal(L, -1, -2));
  EXPECT_EQ(FromUserType(L, -1), &collected);
  EXPECT_TRUE(CheckMetaTableInUserType(L, -1, "TestClass"));
  EXPECT_FALSE(CheckMetaTableInUserType(L, -1, "OtherClass"));
  for (const char* value : {"nil", "1", "{}", "'x'", "io.stdout", "print", "setmetatable({}, {__gc = 1})"}) {
    luaL_loadstring(L, (std::string("return ") + value).c_str());
    lua_call(L, 0, 1);
    EXPECT_FALSE(CheckMetaTableInUserType(L, -1, "TestClass")) << value;
    EXPECT_FALSE(CheckMetaTableInUserType(L, -1, "OtherClass")) << value;
    lua_pop(L, 1);
  }
  // All light userdata share one metatable, which the debug library can set.
  lua_pushlightuserdata(L, &collected);
  luaL_setmetatable(L, "TestClass");
  EXPECT_FALSE(CheckMetaTableInUserType(L, -1, "TestClass"));
  EXPECT_FALSE(CheckMetaTableInUserType(L, lua_gettop(L) + 1, "TestClass"));
  lua_settop(L, 0);
  lua_gc(L, LUA_GCCOLLECT, 0);
  EXPECT_EQ(collected, 2);

  GetSdkCallbackTable(L, "A");
  GetSdkCallbackTable(L, "A");
  GetSdkCallbackTable(L, "B");
  EXPECT_TRUE(lua_rawequal(L, 1, 2));
  EXPECT_FALSE(lua_rawequal(L, 1, 3));
  luaL_loadstring(L, "return setmetatable({1, 2, 3}, {__len = function() return 7 end})");
  lua_call(L, 0, 1);
  EXPECT_EQ(GetLuaTableLen(L), 3);
  lua_settop(L, 0);
}

TEST_F(EntryPoints, ScriptsCannotReachAMetatable) {
  Host host;
  EXPECT_EQ(host.Run("return getmetatable(velora.OrderInfo.new(1)), pcall(setmetatable, velora.OrderInfo.new(1), {})"),
            "false, false, \"bad argument #1 to 'setmetatable' (table expected, got LuaOrderInfo)\"");
}

}  // namespace
}  // namespace tests
