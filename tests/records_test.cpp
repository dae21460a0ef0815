// The record classes that scripts can make, walked field by field from the row files.
#include "tests/harness.h"

namespace tests {
namespace {

struct Records : HostTest {
  Records() {
    for (const char* file : {"objects.lua", "records.lua"}) EXPECT_EQ(host.RunFile(file), "");
  }
};

// A step of records.lua for each class, and for each of its fields.
const char* const kSteps[] = {
#define VELORA_CLASS(Record, luaName) "setClass('" luaName "')",
#define VELORA_CLASS_FIELD(Record, name, Family) "checkField('" #name "', '" #Family "', false)",
#define VELORA_CLASS_FIELD_READ_ONLY(Record, name, Family) "checkField('" #name "', '" #Family "', true)",
#include "platform/records.def"
};

TEST_F(Records, EveryFieldGoesThereAndBack) {
  for (const char* step : kSteps) EXPECT_EQ(host.Run(step), "") << step;
}

TEST_F(Records, AWrongSelfGetsNothing) {
  EXPECT_EQ(host.Run("callAll{1, true, {}, print, io.stdout, coroutine.create(print)} callAll(objects)"), "");
}

TEST_F(Records, AFinishedObjectIsAWrongSelf) {
  host.Run(
      "selves = {} for class, object in pairs(objects) do selves[#selves + 1] = object "
      "for other in pairs(objects) do velora[other].__gc(object) end velora[class].__gc(object) end");
  EXPECT_EQ(offline::LiveRecords(), 0u);
  offline::TakeCalls();
  EXPECT_EQ(host.Run("callAll(selves)"), "");
  EXPECT_EQ(host.Run("for _, self in ipairs(selves) do velora.zvCheckOrder(self) velora.zvConsume(self) "
                     "velora.zvQueryRank(self) velora.zvShare(self) velora.zvCheckArgs(self) "
                     "velora.OrderInfo.regProduct(self) assert(velora.OrderInfo.hasProduct(self) == false) end"),
            "");
  EXPECT_TRUE(offline::TakeCalls().empty());
  EXPECT_EQ(host.Run("return tostring(objects.OrderInfo)"), "error: test:1: '__tostring' must return a string");
}

TEST_F(Records, ConstructorsAnswerAsTheirClassSays) {
  const char* const kNoId = "error: test:1: velora.OrderInfo must be init with productId of type str!";
  Check(host, "velora.ProductInfo.new({}, 1)", "");
  Check(host, "velora.OrderInfo.new(42)", "", R"(New("42"))");
  Check(host, R"(velora.OrderInfo.new('a\0b'))", "", R"(New("a"))");
  for (const char* bad : {"{}", ""}) Check(host, std::string("velora.OrderInfo.new(") + bad + ")", kNoId);
  for (const char* bad :
       {"1, 2, 3, 4, 5, 6", "1, 2, 3, 4, 5, 6, {}", "1, true, 3, 4, 5, 6, 7", "print, 2, 3, 4, 5, 6, 7"})
    Check(host, std::string("return velora.SkuDetailsInfo.new(") + bad + ")", "");
  Check(host, "velora.SkuDetailsInfo.new(1, 'b', 3, 4, 5, 6.0, 7, {})", "",
        R"(New("1", "b", "3", "4", "5", "6.0", "7"))");
  for (const std::string name : {"QueryRankInfo", "ShareInfo", "AccountInfo"}) {
    const std::string make = "return velora." + name + ".new";
    Check(host, make + "()", "userdata", "New()");
    Check(host, make + "(42, 1)", "userdata", R"(New("42"))");
    for (const char* bad : {".new({})", ".new(nil)", ".new(true)", ":new()"})
      Check(host, "return velora." + name + bad, "");
  }
  for (const std::string name : {"OrderInfo", "QueryRankInfo", "ShareInfo", "AccountInfo", "SkuDetailsInfo"}) {
    offline::SetAnswer(name + ".New", false);
    EXPECT_EQ(host.Run("velora." + name + ".new(1, 2, 3, 4, 5, 6, 7)"),
              "error: test:1: velora." + name + " is not supported!");
  }
}

TEST_F(Records, FailuresOfTheRecordShow) {
  for (const std::string name :
       {"ProductInfo", "OrderInfo", "QueryRankInfo", "ShareInfo", "AccountInfo", "SkuDetailsInfo"}) {
    offline::SetAnswer(name + ".toString", std::string("as text"));
    EXPECT_EQ(host.Run("return tostring(objects." + name + ")"), "\"as text\"") << name;
    offline::SetAnswer(name + ".toString", false);
    EXPECT_EQ(host.Run("return tostring(objects." + name + ")"), "error: str(velora." + name + ") error.");
  }
  host.Run("objects.ShareInfo:set_shareData{a = 'b'}");
  offline::SetAnswer("ShareInfo.get_shareData", false);
  EXPECT_EQ(host.Run("return objects.ShareInfo:get_shareData()"), "");
  host.Run("order = velora.OrderInfo.new(1)");
  for (const char* producer : {"obj2Json", "produceCartInfo"}) {
    const std::string call = std::string("return order:") + producer + "()";
    offline::SetAnswer(std::string("OrderInfo.") + producer, std::string("made"));
    EXPECT_EQ(host.Run(call), "\"made\"");
    offline::SetAnswer(std::string("OrderInfo.") + producer, std::string(1, '\0'));
    EXPECT_EQ(host.Run(call), producer == std::string("obj2Json") ? "" : "\"\"");
  }
}

TEST_F(Records, ANewProductHasItsDefaultsAndItsStringWhatWasSet) {
  EXPECT_EQ(
      host.Run("p = velora.ProductInfo.new() return p:get_productId(), p:get_productName(), p:get_productPrice(), "
               "p:get_exchangeRatio(), p:get_sdkPids(), p:get_channelGoodsTypes(), p:get_jellRatios(), "
               "p:get_jellyExtra(), p:get_ffChannel()"),
      "\"\", \"\", 0.0, 1, {}, {}, {}, \"\", \"\"");
  EXPECT_EQ(
      host.Run("p:set_sdkPids{pid = 'p1'} p:set_channelGoodsTypes{goods = 41} p:set_jellRatios{ratio = 42} "
               "p:get_sdkPids().pid = 'changed' return tostring(p)"),
      R"("ProductInfo() {"exchangeRatio":1,"sdkPids":{"pid":"p1"},"channelGoodsTypes":{"goods":41},"jellRatios":{"ratio":42}}")");
}

TEST_F(Records, TheProductRegistryIsReachedThroughTheOrderClass) {
  host.Run(
      "product = velora.ProductInfo.new() product:set_productId('gold.60') product:set_productName('Gold') "
      "product:set_productPrice(0.99) product:set_exchangeRatio(10) product:set_channelGoodsTypes{a = 1} "
      "o = velora.OrderInfo");
  Check(host, "return o.getProductList()", "", "getProductList()");
  Check(host, "return o.regProduct(product)", "", R"(regProduct("gold.60", "Gold", 0.99000000953674, 10))");
  Check(host, "product:set_sdkPids{k = 'v'} return o.regProduct(product, 1)", "",
        R"(regProduct("gold.60", "Gold", 0.99000000953674, 10, {"k": "v"}))");
  Check(host, "return o.regProduct(7)", "", R"(regProduct("7"))");
  Check(host, "return o.hasProduct('gold.60'), o.hasProduct('x')", "true, false",
        R"(hasProduct("gold.60"); hasProduct("x"))");
  Check(host, "return o.hasProduct(), o.hasProduct({}), o.hasProduct(product)", "false, false, false");
  Check(host, "local n = o.new('gold.60') return n:hasProduct(), n:get_sdkPids(), n:produceCartInfo()",
        R"(true, {"k"="v"}, "{"productId":"gold.60","productName":"Gold","productPrice":0.99,"count":0}")",
        R"(New("gold.60"); hasProduct(OrderInfo("gold.60")); produceCartInfo(OrderInfo("gold.60")))");
  Check(host, "list = o.getProductList() return list", R"({"7"=userdata, "gold.60"=userdata})", "getProductList()");
  Check(host,
        "local p = list['gold.60'] p:set_productName('Silver') p:set_sdkPids{} return p:get_exchangeRatio(), "
        "o.getProductList()['gold.60']:get_productName()",
        "10, \"Gold\"", "getProductList()");
  Check(host, "return o.getProductList()['gold.60']:get_sdkPids()", R"({"k"="v"})", "getProductList()");
  Check(host, "o.setProductType('gold.60', 2) return o.getProductType('gold.60')", "2",
        R"(setProductType("gold.60", 2); getProductType("gold.60"))");
  for (const std::string bad : {"setProductType('a', 1.0)", "setProductType('a', '1')", "setProductType({}, 1)",
                                "getProductType({})", "regProduct({}, 1)"})
    Check(host, "return o." + bad, "");
  Check(host, "o.setProductType(5, 1 << 62 | 1)", "", R"(setProductType("5", 1))");
  offline::SetProduct({std::string("whole\0x", 7), "", 0, 1, {{"p", "1"}}, {{"g", 2}}, {{"r", 3}}, "", ""});
  Check(host,
        "local p = o.getProductList().whole return p:get_sdkPids(), p:get_channelGoodsTypes(), p:get_jellRatios()",
        R"({"p"="1"}, {"g"=2}, {"r"=3})", "getProductList()");
}

// Nothing is allocated in Lua here: the collector runs only because of what the setters charge, unless it is stopped.
TEST_F(Records, LongContentDrivesTheCollector) {
  EXPECT_EQ(host.Run("local order, share, text = objects.OrderInfo, objects.ShareInfo, ('x'):rep(1 << 20) "
                     "local list, map = {text}, {k = text} "
                     "for _, row in ipairs{{order.set_aid, order, text}, {order.set_arrPriceLocaleId, order, list}, "
                     "{share.set_shareData, share, map}, {share.set_textMsg, share, map}} do "
                     "local function collects() collectgarbage() local weak = setmetatable({{}}, {__mode = 'v'}) "
                     "for _ = 1, 99 do row[1](row[2], row[3]) end return #weak == 0 end "
                     "assert(collects()) collectgarbage('stop') assert(not collects()) collectgarbage('restart') end"),
            "");
}

TEST_F(Records, TableSettersRaiseAndKeepTheOldValue) {
  host.Run("product = velora.ProductInfo.new() share = velora.ShareInfo.new() order = velora.OrderInfo.new(1)");
  const char* const errors[][3] = {
      {"product", "sdkPids", "self->m_sdk_pids"},        {"product", "channelGoodsTypes", "self->m_channel_goodsTypes"},
      {"product", "jellRatios", "self->m_jell_ratios"},  {"share", "aLinkParams", "self->m_dictALinkParams"},
      {"share", "altTextMsg", "self->m_dictAltTextMsg"}, {"share", "iLinkParams", "self->m_dictILinkParams"},
      {"share", "linkParams", "self->m_dictLinkParams"}, {"share", "linkTextMsg", "self->m_dictLinkTextMsg"},
      {"share", "subTextMsg", "self->m_dictSubTextMsg"}, {"share", "textMsg", "self->m_dictTextMsg"},
      {"share", "toUserList", "self->m_listToUserList"}, {"share", "shareData", "ptrHashMap"},
  };
  for (const auto& [object, field, text] : errors) {
    const std::string self = object, name = field;
    host.Run(self + ":set_" + name + "{[1] = 5}");
    const std::string before = host.Run("return " + self + ":get_" + name + "()");
    for (const char* bad : {"'x'", "nil", "", "1"})
      EXPECT_EQ(host.Run(self + ":set_" + name + "(" + bad + ")"),
                std::string("error: test:1: ") + text + "must be table");
    EXPECT_EQ(host.Run("return " + self + ":get_" + name + "()"), before);
    EXPECT_NE(before, "{}");
  }
  host.Run("order:set_arrPriceLocaleId{'a'}");
  for (const char* bad : {"{'b', {}}", "{1, nil, 3}", "{true}"})
    EXPECT_EQ(host.Run(std::string("order:set_arrPriceLocaleId(") + bad + ")"),
              "error: test:1: localeId need string list");
  EXPECT_EQ(
      host.Run("order:set_arrPriceLocaleId('x') order:set_arrPriceLocaleId() return order:get_arrPriceLocaleId()"),
      "{[1]=\"a\"}");
}

TEST_F(Records, ANewShareRequestHasWhatItsRecordHolds) {
  offline::Fields fields = {{"toUserList", offline::FieldList{"anna"}}};
  const char* const maps[] = {"aLinkParams", "altTextMsg", "iLinkParams", "linkParams",
                              "linkTextMsg", "subTextMsg", "textMsg"};
  for (const char* name : maps) fields[name] = tarn::velora::StringMap{{"k", name}};
  offline::SetNewShare(fields);
  host.Run("share = velora.ShareInfo.new()");
  for (const std::string name : maps)
    EXPECT_EQ(host.Run("return share:get_" + name + "()"), "{\"k\"=\"" + name + "\"}");
  EXPECT_EQ(host.Run("return share:get_toUserList()"), "{[1]=\"anna\"}");
}

}  // namespace
}  // namespace tests
