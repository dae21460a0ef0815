// The three entry points, the shape of the table `velora`, and the six binding helpers.
#include <cmath>

#include "binding/set_constant.h"
#include "constants/constants.h"
#include "platform/binding_helpers.h"
#include "platform/const_prop.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"
#include "tests/harness.h"

namespace tests {
namespace {

using namespace tarn::velora;

using EntryPoints = HostTest;

std::string Shown(const std::string& text) { return '"' + text + '"'; }
std::string Shown(std::int32_t value) { return std::to_string(value); }
std::string Shown(float value) { return Shown(static_cast<std::int32_t>(value)); }

// The test of the annotations compares the names.
TEST_F(EntryPoints, ConstantsHaveTheValuesOfTheirRows) {
  const auto expect = [this](const std::string& name, const auto& value) {
    EXPECT_EQ(host.Run("return velora." + name), Shown(value)) << name;
  };
#define VELORA_CONSTANT(name, kind) expect(#name, ConstProp::name);
#include "platform/constants.def"
#define VELORA_MODULE_CONSTANT(name, value) expect(#name, std::int32_t{value});
#include "constants/module_constants.def"
#define VELORA_SHARE_CONSTANT(name) expect("SHARE_" #name, ShareInfo::name);
#include "platform/share_constants.def"
#define VELORA_QUERY_RANK_CONSTANT(name) expect(#name, QueryRankInfo::name);
#include "platform/query_rank_constants.def"
}

TEST_F(EntryPoints, ConstantsHoldFixedValues) {
  const std::pair<float, lua_Integer> floats[] = {
      {-2.75f, -2}, {9e9f, INT32_MAX}, {2147483648.0f, INT32_MAX}, {-9e9f, INT32_MIN}, {NAN, 0}};
  for (const auto& [value, shown] : floats) EXPECT_EQ(luavelora::LuaValue(value), shown) << value;
  lua_getglobal(host.L, "velora");
  luavelora::SetConstant(host.L, "CUT", std::string("a\0b", 3));
  lua_pop(host.L, 1);
  EXPECT_EQ(host.Run("return velora.AUTH_UNLOGIN, velora.C_MAX_PRICE, velora.PAD_KEYCODE_RIGHT_STICK, "
                     "velora.LOGIN_DONE_VELORA_BIND_FAIL, velora.PAD_ACTION_PRESSURE, velora.FINISH_INIT_MISSED, "
                     "velora.CODE_SCANNER_PERMISSIONS_DENY, velora.ORDER_S_SDK_CHANNEL_IN_BLACKLIST, "
                     "velora.PRODUCT_TYPE_PROMOCODE, velora.CUT"),
            "-1, 9999, 201, -130, -1, 3, 4, 430, 4, \"a\"");
}

TEST_F(EntryPoints, DeinitEmptiesTheSlotsAndNothingElse) {
  memory::FailAfter(0);
  DeinitLuaVelora(host.L);
  EXPECT_FALSE(memory::Restore());
  host.Run("for k, v in pairs(velora) do if k:find('^setOn') then v(print) end end order = velora.OrderInfo.new(1)");
  EXPECT_EQ(host.Run("return velora.getOnLoginDone() == print, velora.getOnDownloadFinish2() == print"), "true, true");
  // Without memory only the creation of an object fails; nothing else allocates.
  offline::Post(MakeEvent(17, true));
  lua_pushcfunction(host.L, [](lua_State* L) { return (UpdateLuaVelora(L), 0); });
  memory::FailAfter(0);
  lua_pcall(host.L, 0, 0, 0);
  DeinitLuaVelora(host.L);
  EXPECT_TRUE(memory::Restore());
  EXPECT_STREQ(lua_tostring(host.L, -1), "not enough memory");
  EXPECT_EQ(lua_gettop(host.L), 1);
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

// Deinit allocates nothing after Init, so no finalizer runs.
TEST_F(EntryPoints, DeinitRaisesNoErrorOfAFinalizer) {
  for (const bool initialise : {true, false}) {
    host.Open(initialise);
    host.Run(
        "collectgarbage('stop') collectgarbage('setpause', 0) collectgarbage('setstepmul', 1000000) "
        "setmetatable({}, {__gc = function() error('finalizer') end})");
    lua_pushcfunction(host.L, [](lua_State* L) {
      lua_gc(L, LUA_GCRESTART, 0);
      DeinitLuaVelora(L);
      lua_gc(L, LUA_GCSTOP, 0);
      return 0;
    });
    EXPECT_EQ(lua_pcall(host.L, 0, 0, 0), initialise ? LUA_OK : LUA_ERRGCMM);
    lua_settop(host.L, 0);
  }
}

// enter(entry, full, hooked) calls the entry point, with a full Lua stack if `full` and a hook that raises if `hooked`.
int CallEntryPoint(lua_State* L) {
  const auto raise = [](lua_State* state, lua_Debug*) {
    lua_sethook(state, nullptr, 0, 0);
    luaL_error(state, "hooked");
  };
  if (lua_toboolean(L, 3)) lua_sethook(L, raise, LUA_MASKCALL, 0);
  while (lua_toboolean(L, 2) && lua_checkstack(L, LUA_MINSTACK)) lua_settop(L, lua_gettop(L) + LUA_MINSTACK);
  (*static_cast<void (**)(lua_State*)>(lua_touserdata(L, 1)))(L);
  return 0;
}

// The Lua errors that leave each entry point.
TEST_F(EntryPoints, WhatLeavesThem) {
  struct Case {
    const char* run;
    const char* init;
    const char* update;
    const char* deinit;
  };
  for (const auto& [run, init, update, deinit] : {
           Case{"enter(entry, true)", "test:1: stack overflow", "test:1: stack overflow", "test:1: stack overflow"},
           // At the deepest level pcall fails, and the entry point is called instead.
           {"local entered local function deep() local ok, e = pcall(deep) if entered then error(e or '', 0) end "
            "entered = true enter(entry) end deep()",
            "C stack overflow", "C stack overflow", ""},
           {"setmetatable(_G, {__newindex = function() error('closed', 0) end}) enter(entry)", "closed", "", ""},
           {"enter(entry, false, true)", "hooked", "hooked", ""},
       }) {
    const std::pair<void (*)(lua_State*), const char*> entries[] = {
        {InitLuaVelora, init}, {UpdateLuaVelora, update}, {DeinitLuaVelora, deinit}};
    for (auto [entry, expected] : entries) {
      host.Open(entry != InitLuaVelora);
      lua_register(host.L, "enter", CallEntryPoint);
      lua_pushlightuserdata(host.L, &entry);
      lua_setglobal(host.L, "entry");
      offline::Post(std::make_shared<CodeEvent>(15));
      EXPECT_EQ(host.Run(std::string("local ok, e = pcall(function() ") + run + " end) return ok and '' or e"),
                '"' + std::string(expected) + '"')
          << run;
    }
  }
}

// The ModuleState is not in the registry.
TEST_F(EntryPoints, FunctionsWithoutTheModulesStateReturnNothing) {
  offline::SetProduct({});
  offline::SetCheckedOrders({offline::MakeOrder({})});
  EXPECT_EQ(host.Run("local registry = debug.getregistry() local key, state "
                     "for k, v in pairs(registry) do if type(k) == type(v) and type(k) == 'userdata' then "
                     "key, state = k, v end end registry[key] = nil "
                     "local found = {velora.OrderInfo.getProductList(), velora.zvGetCheckedOrders(), "
                     "velora.download.setSyncDownloadHandler{onInited = print, "
                     "onProgress = print, onFinish = print}, velora.download.getSyncDownloadHandler()} "
                     "registry[key] = state return found, velora.OrderInfo.new('x'):get_productId()"),
            "{}, \"x\"");
}

TEST_F(EntryPoints, ASecondInitKeepsOlderObjectsAndCallbacks) {
  host.Run("old = velora; order = velora.OrderInfo.new('gold'); velora.setOnLoginDone(print)");
  InitLuaVelora(host.L);
  EXPECT_EQ(lua_gettop(host.L), 0);
  EXPECT_EQ(host.Run("return old ~= velora, velora.OrderInfo.get_productId(order), old.OrderInfo.get_productId(order), "
                     "order:get_productId(), velora.getOnLoginDone() == print"),
            "true, \"gold\", \"gold\", \"gold\", true");
  host.Run("order = nil collectgarbage()");
  EXPECT_EQ(offline::LiveRecords(), 0u);
}

// The registry keys are strings, so that other libraries with these helpers find the same tables.
TEST_F(EntryPoints, HelpersKeepTheirContract) {
  host.Open(false);
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
    luaL_dostring(L, (std::string("return ") + value).c_str());
    EXPECT_FALSE(CheckMetaTableInUserType(L, -1, "TestClass")) << value;
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
  luaL_dostring(L, "return setmetatable({1, 2, 3}, {__len = function() return 7 end})");
  EXPECT_EQ(GetLuaTableLen(L), 3);
}

// A userdata of another library's class with one of the module's names must not be read as an object, and scripts
// cannot reach a metatable. A frame before InitLuaVelora drops the events.
TEST_F(EntryPoints, WhatWasThereBeforeTheStartIsNotAdopted) {
  host.Open(false);
  offline::Post(MakeEvent(4, false));
  EXPECT_EQ(host.Frame(), "");
  EXPECT_TRUE(offline::TakeLog().empty());
  lua_State* L = host.L;
  *static_cast<void**>(lua_newuserdata(L, sizeof(void*))) = L;
  luaL_newmetatable(L, "LuaOrderInfo");
  lua_setmetatable(L, -2);
  lua_setglobal(L, "foreign");
  InitLuaVelora(L);
  EXPECT_EQ(host.Run("return velora.OrderInfo.get_count(foreign)"), "");
  EXPECT_EQ(host.Run("return getmetatable(velora), getmetatable(velora.OrderInfo.new(1)), pcall(setmetatable, "
                     "velora.OrderInfo.new(1), {})"),
            "nil, false, false, \"bad argument #1 to 'setmetatable' (table expected, got LuaOrderInfo)\"");
  EXPECT_EQ(host.Run("return velora.OrderInfo.new(1):get_productId()"), "\"1\"");
}

}  // namespace
}  // namespace tests
