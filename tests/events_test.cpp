// Callback slots, the per-frame pass, and the arguments of each callback.
#include <map>

#include "platform/binding_helpers.h"
#include "platform/event.h"
#include "platform/log.h"
#include "platform/operations.h"
#include "tests/harness.h"

namespace tests {
namespace {

using namespace tarn::velora;

constexpr int kNoEventType = 1 << 20;

struct Events : HostTest {
  Events() {
    host.Run(
        "log = {} function note(...) log[#log + 1] = table.pack(...) end "
        "function take() local l = log log = {} for _, e in ipairs(l) do e.n = nil end return table.unpack(l) end");
  }

  static void PostCode(int type, int code) {
    auto event = std::make_shared<CodeEvent>(type);
    event->code = code;
    offline::Post(event);
  }
};

TEST_F(Events, SettersStoreFunctionsOnly) {
  EXPECT_EQ(host.Run("return velora.getOnLoginDone()"), "");
  EXPECT_EQ(host.Run("return velora.setOnLoginDone(print, 'ignored')"), "");
  for (const char* bad : {"nil", "'x'", "{}", "", "velora, print", "setmetatable({}, {__call = print})"})
    EXPECT_EQ(host.Run("return velora.getOnLoginDone(1) == print, velora.setOnLoginDone(" + std::string(bad) + ")"),
              "true")
        << bad;
}

TEST_F(Events, ErrorsAreLoggedAndThePassGoesOn) {
  host.Run(
      "velora.setOnLoginDone(function(code) note(code) if code < 9 then error(errors[code], 0) end end) "
      "errors = {'100% s', 42, 1.5, {}, true, nil, coroutine.create(print), io.stdout}");
  for (int code = 1; code <= 9; ++code) PostCode(15, code);
  EXPECT_EQ(host.Frame(), "");
  EXPECT_EQ(host.Run("return #log"), "9");
  const char* const expected[] = {"100% s",
                                  "42",
                                  "1.5",
                                  "(error object is a table value)",
                                  "(error object is a boolean value)",
                                  "(error object is a nil value)",
                                  "(error object is a thread value)",
                                  "(error object is a userdata value)"};
  const auto lines = offline::TakeLog();
  ASSERT_EQ(lines.size(), std::size(expected));
  for (std::size_t i = 0; i < lines.size(); ++i)
    EXPECT_EQ(lines[i], std::string("[VELORA] 0 [Velora callback err] ") + expected[i]);
}

// Lines are logged on the channel in the SDK's global at the time of the call.
TEST_F(Events, UnknownTypesAreLoggedOnlyWhereTheTableHoldsAValue) {
  for (int type : {kNoEventType, -1, kNoEventType + 1}) offline::Post(std::make_shared<Event>(type));
  EXPECT_EQ(host.Frame(), "");
  EXPECT_TRUE(offline::TakeLog().empty());
  const std::uint32_t own = LogChannel;
  LogChannel = tarn::log::RegisterChannel("OTHER");
  host.Run("velora.setOnLoginDone(function() error('x', 0) end)");
  GetSdkCallbackTable(host.L, "VELORA");
  for (int key : {kNoEventType, -1}) {
    lua_pushboolean(host.L, 0);
    lua_rawseti(host.L, -2, key);
  }
  lua_pop(host.L, 1);
  for (int type : {kNoEventType, -1, kNoEventType + 1}) offline::Post(std::make_shared<Event>(type));
  PostCode(15, 0);
  EXPECT_EQ(host.Frame(), "");
  EXPECT_EQ(offline::TakeLog(),
            (std::vector<std::string>{"[OTHER] ERROR Unknown velora event " + std::to_string(kNoEventType),
                                      "[OTHER] ERROR Unknown velora event -1", "[OTHER] 0 [Velora callback err] x"}));
  LogChannel = own;
}

TEST_F(Events, TheBatchIsReleasedAfterThePassFirstToLast) {
  static std::vector<int> released;
  struct Witness : CodeEvent {
    explicit Witness(int number) : CodeEvent(15) { code = number; }
    ~Witness() override { released.push_back(code); }
  };
  released.clear();
  host.Run("velora.setOnLoginDone(function() early = (early or 0) + released() error('x') end)");
  lua_register(host.L, "released", [](lua_State* L) {
    lua_pushinteger(L, static_cast<lua_Integer>(released.size()));
    return 1;
  });
  for (int i = 1; i <= 3; ++i) offline::Post(std::make_shared<Witness>(i));
  EXPECT_EQ(host.Frame(), "");
  EXPECT_EQ(host.Run("return early"), "0");
  EXPECT_EQ(released, (std::vector<int>{1, 2, 3}));
}

TEST_F(Events, CallbacksSetInAPassServeTheNextEventOfItAndEventsQueuedWait) {
  lua_register(host.L, "post", [](lua_State*) {
    PostCode(16, 6);
    return 0;
  });
  host.Run("velora.setOnLoginDone(function() velora.setOnLogoutDone(function(...) note('new', ...) end) post() end)");
  PostCode(16, 4);
  PostCode(15, 0);
  PostCode(16, 5);
  for (const char* code : {"5", "6"}) {
    EXPECT_EQ(host.Frame(), "");
    EXPECT_EQ(host.Run("return take()"), std::string("{[1]=\"new\", [2]=") + code + "}");
  }
}

// What a layout's callback receives when nothing of the payload is set, and when everything is.
const std::map<std::string, std::pair<const char*, const char*>> kLayouts = {
    {"PlainEvent", {"", ""}},
    {"CodeEvent", {"0", "-2147483648"}},
    {"CodeTextEvent", {"0, \"\"", "-2147483648, \"te\""}},
    {"FlagEvent", {"false", "true"}},
    {"TextEvent", {"\"\"", "\"te\""}},
    {"TextPairEvent", {"\"\", \"\"", "\"a\", \"te\""}},
    {"TextListEvent",
     {"{}", "{[1]=\"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\", [2]=\"te\", [3]=\"\"}"}},
    {"PadKeyEvent", {"0, nil", "-96, \"PadEvent\""}},
    {"PadPressureEvent", {"0, 0.0, nil", "-96, 0.25, \"PadEvent\""}},
    {"PadStickEvent", {"0.0, 0.0, nil", "0.5, -1.0, \"PadEvent\""}},
    {"PadStateEvent", {"nil", "\"PadEvent\""}},
    {"OrderEvent", {"nil", "\"OrderInfo\""}},
    {"AccountEvent", {"nil", "\"AccountInfo\""}},
    {"AccountListEvent", {"{}", "{[1]=\"AccountInfo\", [3]=\"AccountInfo\"}"}},
    {"SkuListEvent", {"{}", "{[1]=\"SkuDetailsInfo\", [3]=\"SkuDetailsInfo\"}"}},
    {"BytesEvent", {"nil", "\"a0b\""}},
    {"TextBytesEvent", {"\"\", nil", "\"te\", \"\""}},
};

TEST_F(Events, EveryEventReachesItsCallbackWithItsArguments) {
  EXPECT_EQ(host.RunFile("events.lua"), "");
  for (const EventRow& row : kEventRows) {
    host.Run(std::string("velora.setOn") + row.name + "(receive)");
    const auto layout = kLayouts.find(row.layout);
    ASSERT_NE(layout, kLayouts.end()) << "kLayouts has no row for the " << row.layout << " of " << row.name;
    for (const bool filled : {false, true}) {
      offline::Post(MakeEvent(row.type, filled));
      EXPECT_EQ(host.Frame(), "");
      EXPECT_EQ(host.Run("local g = got got = nil return table.unpack(g, 1, g.n)"),
                filled ? layout->second.second : layout->second.first)
          << row.name;
    }
  }
  EXPECT_TRUE(offline::TakeLog().empty());
}

}  // namespace
}  // namespace tests
