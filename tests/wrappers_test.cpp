// What the table of argument kinds does not cover: options, lists, records, optional arguments.
#include "tests/harness.h"

namespace tests {
namespace {

struct Wrappers : HostTest {
  // Checks `velora.<name>(<arguments>)`; `call` is the expected line's argument list, null for no call.
  void Expect(const std::string& name, const std::string& arguments, const char* call,
              const std::string& results = "") {
    Check(host, "return velora." + name + "(" + arguments + ")", results,
          call == nullptr ? "" : name + "(" + call + ")");
  }
};

TEST_F(Wrappers, PropertiesHaveAFormWithASecondString) {
  offline::SetAnswer("getPropStr", std::string("value"));
  Expect("getPropStr", "'name', true", "\"name\"", "\"value\"");
  Expect("getPropStr", "'name', 5", "\"name\", \"5\"", "\"value\"");
}

TEST_F(Wrappers, OptionsPassThePointerThatTheirTypeAsksFor) {
  Expect("zvLumoSetOption", "'int.fps', 1 << 62 | 9", "\"int.fps\", 9");
  Expect("zvLumoSetOption", "'text', 7.0", "\"text\", \"7.0\"");
  Expect("zvLumoSetOption", "'text', 'a long one\\0cut'", "\"text\", \"a long one\"");
  for (const std::string name : {"int.fps", "INT_FPS", "int", "intFps", "int{"})
    Expect("zvLumoSetOption", "'" + name + "', 65", ('"' + name + "\", 65").c_str());
  for (const std::string name : {"interval", "INTERVAL", "intz", "INTZ", "key_int", "boolean", "t.bool"})
    Expect("zvLumoSetOption", "'" + name + "', 65", ('"' + name + "\", \"A\"").c_str());
  for (const std::string name : {"bool.on", "BOOL", "bool2"})
    for (const std::string value : {"false", "true"})
      Expect("zvLumoSetOption", "'" + name + "', " + value, ('"' + name + "\", " + value).c_str());
  for (const char* bad : {"'text', nil", "'text', {}", "'text', print"})
    Expect("zvLumoSetOption", bad, nullptr, "error: test:1: zvLumoSetOption: unsupport value type.");
}

TEST_F(Wrappers, CommandLineIsSetAndCleared) {
  for (const char* bad : {"{}", "true", "'a', 'b'", "'a', nil", "print"})
    Expect("setCmdLineParameter", bad, nullptr, "error: test:1: setCmdLineParameter must be str");
  Expect("setCmdLineParameter", "'-windowed'", "\"-windowed\"");
  Expect("getCmdLineParameter", "", "", "\"-windowed\"");
  for (const char* clear : {"", "nil", "nil, 'b'", "''", "'\\0x'"}) {
    Expect("setCmdLineParameter", clear, "null");
    Expect("getCmdLineParameter", "", "");
  }
  offline::SetAnswer("getCmdLineParameter", std::string());
  Expect("getCmdLineParameter", "", "");
}

TEST_F(Wrappers, ListsAreReadAndTheirErrorsCarryThePosition) {
  for (const char* name : {"zvShowRewardView", "zvDeleteInviters"}) {
    Expect(name, "{'a', 2, 3.0}", "{\"a\", \"2\", \"3.0\"}");
    Expect(name, "{}", "{}");
    Expect(name, "{'a', {}, true, 'b'}", "{\"a\", \"b\"}");
    for (const char* bad : {"", "nil", "'a'", "1"}) Expect(name, bad, nullptr, "error: test:1: ptrmust be table");
  }
  Expect("zvDisplayQuests", "{1 << 62 | 1, 2.0, '3', 'x', 1.5}", "{1, 2, 3, 0, 0}, 5");
  Expect("zvDisplayQuests", "{}", "null, 0");
  Expect("zvDisplayQuests", "", nullptr, "error: test:1: ptrmust be table");
  Expect("zvSendPushNotification", "'t', {'a', 5}", "\"t\", {\"a\", \"5\"}");
  Expect("zvQuerySkuDetails", "'t', {'a', 5}", "\"t\", {\"a\", \"5\"}");
  for (const char* bad : {"'t', {'a', {}}", "'t', {true}", "'t', {1, nil, 3}"})
    Expect("zvQuerySkuDetails", bad, nullptr, "error: test:1: SkuDetails need string list");
}

TEST_F(Wrappers, ALengthThatATableClaimsIsHonouredAndBounded) {
  host.Run("function claim(n) return setmetatable({'a', 'b', 'c'}, {__len = function() return n end}) end");
  Expect("zvDeleteInviters", "claim(2)", "{\"a\", \"b\"}");
  Expect("zvDeleteInviters", "claim(2^32 | 0 + 1)", "{\"a\"}");
  Expect("zvDeleteInviters", "claim(-1)", "{}");
  Expect("zvDeleteInviters", "claim('x')", "{}");
  Expect("zvDeleteInviters", "claim(1 << 20)", "{\"a\", \"b\", \"c\"}");
  for (const char* name : {"zvDeleteInviters", "zvShowRewardView", "zvDisplayQuests"})
    Expect(name, "claim((1 << 20) + 1)", nullptr, "error: test:1: list is longer than 1048576 elements");
  Expect("zvSendPushNotification", "'t', claim(1 << 30)", nullptr,
         "error: test:1: list is longer than 1048576 elements");
  Expect("zvQuerySkuDetails", "'t', claim(1)", "\"t\", {\"a\", \"b\", \"c\"}");
  EXPECT_EQ(host.Run("velora.zvDisplayQuests(claim(9999)) long = {} for i = 1, 1 << 20 do long[i] = i end "
                     "return velora.zvQuerySkuDetails('t', long)"),
            "");
  EXPECT_GT(offline::TakeCalls().back().size(), 7000000u);
  Expect("zvQuerySkuDetails", "'t', long, table.insert(long, 'x')", nullptr,
         "error: test:1: list is longer than 1048576 elements");
}

TEST_F(Wrappers, MetamethodsOtherThanLenAreNotConsulted) {
  host.Run(
      "t = setmetatable({}, {__index = function() return '7' end, __len = function() return 2 end, "
      "__pairs = function() error('no') end}) share = velora.ShareInfo.new()");
  Expect("zvDeleteInviters", "t", "{}");
  Expect("zvDisplayQuests", "t", "{0, 0}, 2");
  Expect("zvQuerySkuDetails", "'t', setmetatable({'a', nil, 'c'}, getmetatable(t))", nullptr,
         "error: test:1: SkuDetails need string list");
  EXPECT_EQ(host.Run("share:set_textMsg(t) return share:get_textMsg()"), "{}");
  Expect("zvDeleteInviters", "setmetatable({}, {__len = function() error('mine') end})", nullptr,
         "error: test:1: mine");
}

TEST_F(Wrappers, CheckedOrdersAreNewObjectsForTheSameRecords) {
  Expect("zvGetCheckedOrders", "", "");
  {
    auto order = offline::MakeOrder({{"orderId", std::string("A1")}});
    offline::SetCheckedOrders({order, nullptr, order});
  }
  EXPECT_EQ(host.Run("orders = velora.zvGetCheckedOrders(); return orders"), "{[1]=userdata, [3]=userdata}");
  EXPECT_EQ(host.Run("velora.zvRemoveCheckedOrders('B1') local n = #velora.zvGetCheckedOrders() "
                     "velora.zvRemoveCheckedOrders('A1') return n, velora.zvGetCheckedOrders()"),
            "3, {}");
  EXPECT_EQ(host.Run("orders[1]:set_count(9); return orders[3]:get_count(), orders[1] ~= orders[3]"), "9, true");
  EXPECT_EQ(host.Run("orders[1] = nil; collectgarbage(); return orders[3]:get_orderId()"), "\"A1\"");
}

TEST_F(Wrappers, ServicesWithOptionalArguments) {
  Expect("zvSetFloatBtnVisible", "0", "true");
  Expect("zvSetFloatBtnVisible", "''", "true");
  for (const char* no : {"", "nil", "false"}) Expect("zvSetFloatBtnVisible", no, "false");

  Expect("zvCreateQRCode", "'t', 300, 2^32|0 + 1, 'p'", "\"t\", 300, 1, \"p\"");
  Expect("zvCreateQRCode", "'t', 300, 1, 'p', false", "\"t\", 300, 1, \"p\"");
  Expect("zvCreateQRCode", "'t', 300, 1, 'p', 5", "\"t\", 300, 1, \"p\", \"5\"");

  const char* const voice[][2] = {
      {"('x'):rep(960)", "<960 bytes>, 960, 48000, 16, 2"},
      {"'a\\0b\\0', 0", "<4 bytes>, 4, 48000, 16, 2"},
      {"'abcd', 2, 8000, 8, 1", "<2 bytes>, 2, 8000, 8, 1"},
      {"'abcd', 2.0, '8000', {}, 1.0", "<4 bytes>, 4, 48000, 16, 2"},
      {"'abcd', 5", "<4 bytes>, 4, 48000, 16, 2"},
      {"'abcd', -1", "<4 bytes>, 4, 48000, 16, 2"},
      {"'abcd', math.maxinteger, -1, 1 << 62 | 3, 1", "<4 bytes>, 4, 4294967295, 3, 1"},
      {"''", "<0 bytes>, 0, 48000, 16, 2"},
      {"12", "<2 bytes>, 2, 48000, 16, 2"},
  };
  for (const auto& [arguments, call] : voice) Expect("zvPushGameVoice", arguments, call);
}

}  // namespace
}  // namespace tests
