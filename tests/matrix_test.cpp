// Every function that a script sees, called with every combination of arguments that matters. A refused call makes no
// SDK call. An accepted call makes one, with the converted arguments, and returns its result. Neither logs a line.
#include "tests/harness.h"

namespace tests {
namespace {

struct Matrix : HostTest {
  Matrix() {
    lua_pushlightuserdata(host.L, &host);
    lua_setglobal(host.L, "light");
    lua_register(host.L, "calls", [](lua_State* L) {
      luaL_checkstack(L, LUA_MINSTACK, nullptr);
      const auto lines = offline::TakeCalls();
      lua_pushinteger(L, static_cast<lua_Integer>(lines.size()));
      if (lines.empty()) return 1;
      lua_pushlstring(L, lines[0].data(), lines[0].size());
      return 2;
    });
    lua_register(host.L, "answer", [](lua_State* L) {
      offline::Answer value = lua_toboolean(L, 2) != 0;
      if (lua_isinteger(L, 2) != 0) value = std::int64_t{lua_tointeger(L, 2)};
      if (lua_type(L, 2) == LUA_TSTRING) value = std::string(lua_tostring(L, 2), lua_rawlen(L, 2));
      offline::SetAnswer(lua_tostring(L, 1), value);
      return 0;
    });
    EXPECT_EQ(host.RunFile("signatures.lua"), "");
    EXPECT_EQ(host.RunFile("matrix.lua"), "");
    offline::TakeCalls();
  }

  void TearDown() override {
    EXPECT_TRUE(offline::TakeLog().empty());
    HostTest::TearDown();
  }
};

TEST_F(Matrix, WrappersCallTheSdkForGoodArgumentsOnly) { EXPECT_EQ(host.Run("checkArguments()"), ""); }

TEST_F(Matrix, WrappersReturnWhatTheSdkAnswers) { EXPECT_EQ(host.Run("checkResults()"), ""); }

TEST_F(Matrix, EveryOtherFunctionBearsEveryArgument) { EXPECT_EQ(host.Run("callEverythingElse()"), ""); }

}  // namespace
}  // namespace tests
