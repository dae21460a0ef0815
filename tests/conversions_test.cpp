// Conversions where the rules are finer than a wrapper's table shows.
#include "binding/conversions.h"

#include <gtest/gtest.h>

#include "tests/harness.h"

namespace tests {
namespace {

using Conversions = VeloraTest;

TEST_F(Conversions, NumbersHaveTheTextThatLuaGivesThem) {
  Host host(false);
  for (const char* number : {"0", "-0.0", "1.0", "-7", "math.maxinteger", "math.mininteger", "1e15", "1e100", "0.1",
                             "-1.5e-7", "2^53", "1/0", "-1/0", "123456789012345.0", "1e14", "3.14159265358979"}) {
    luaL_loadstring(host.L, (std::string("return ") + number).c_str());
    lua_call(host.L, 0, 1);
    luavelora::ValueText text;
    EXPECT_STREQ(text.Get(host.L, -1), luaL_tolstring(host.L, -1, nullptr)) << number;
    lua_settop(host.L, 0);
  }
}

TEST_F(Conversions, StrictListsAreBoundedToo) {
  Host host;
  EXPECT_EQ(host.Run("local t = {} for i = 1, (1 << 20) + 1 do t[i] = 'x' end velora.zvQuerySkuDetails('t', t)"),
            "error: test:1: list is longer than 1048576 elements");
}

TEST_F(Conversions, MetamethodsOtherThanLenAreNotConsulted) {
  Host host;
  EXPECT_EQ(host.Run("local t = setmetatable({}, {__index = function() return 'ghost' end, __len = function() "
                     "return 2 end, __pairs = function() error('no') end}) velora.zvDeleteInviters(t) "
                     "local share = velora.ShareInfo.new() share:set_textMsg(t) return share:get_textMsg()"),
            "{}");
  EXPECT_EQ(host.Run("velora.zvDeleteInviters(setmetatable({}, {__len = function() error('mine') end}))"),
            "error: test:1: mine");
}

}  // namespace
}  // namespace tests
