// The virtual tables that module and SDK share, called by raw slot index.
#include <sstream>
#include <stdexcept>

#include "download/handler.h"
#include "platform/account_info.h"
#include "platform/order_info.h"
#include "platform/pad_record.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"
#include "platform/sku_details_info.h"
#include "records/holder.h"
#include "tests/harness.h"

namespace tests {
namespace {

using namespace tarn::velora;

using Abi = VeloraTest;

// Calls the operation in a virtual-table slot of `object`, as a compiled caller would.
template <class... Arguments>
void CallSlot(void* object, std::size_t slot, Arguments... arguments) {
  void** table = *static_cast<void***>(object);
  reinterpret_cast<void (*)(void*, Arguments...)>(table[slot])(object, arguments...);
}

// Returns the operation in a slot of a record. Calls it without arguments: the runtime's call hook throws its name
// before it uses any.
std::string OperationAt(void* record, std::size_t slot) {
  offline::SetCallHook([](const char* operation) { throw std::runtime_error(operation); });
  std::string name;
  try {
    CallSlot(record, slot);
  } catch (const std::runtime_error& hook) {
    name = hook.what();
  }
  offline::SetCallHook(nullptr);
  return name;
}

// `operations` are the names from slot 1 on; the words get_, set_ and plain set the prefix of the names that follow.
void ExpectSlots(void* record, const std::string& className, const std::string& operations) {
  std::istringstream words(operations);
  std::string prefix;
  std::size_t slot = 0;
  for (std::string word; words >> word;) {
    if (word == "get_" || word == "set_" || word == "plain")
      prefix = word == "plain" ? "" : word;
    else
      EXPECT_EQ(OperationAt(record, ++slot), className + '.' + prefix + word) << slot;
  }
}

TEST_F(Abi, RecordsHaveTheirOperationsInTheirSlots) {
  ExpectSlots(OrderInfo::New("").get(), "OrderInfo", R"(
    get_ aid count curOrderChannel externalChannelId ffChannel jfCode jfExtInfo extendJson jfAasFfCode jfAasFfRule
    jfMessage veloraJfExtCid jfGas3Url jfSubCode orderChannel orderCurrency orderDesc orderErrReason orderErrCode
    orderEtc orderId orderStatus productCurrentPrice productExchangeRatio productId productName productPrice
    qrCodeParams sdkOrderId sdkPids serverId signature uid userData userName arrPriceLocaleId receipt qrCodeOrder
    channelGoodsTypes jellRatios jellyExtra cpOrderId jfExtraJson timeStamp orderType
    plain produceCartInfo
    set_ aid count externalChannelId qrCodeOrder jfCode jfExtInfo extendJson jfAasFfCode jfAasFfRule jfMessage
    veloraJfExtCid jfGas3Url jfSubCode orderChannel orderCurrency orderDesc orderErrReason orderEtc orderId orderStatus
    productCurrentPrice productId qrCodeParams sdkOrderId serverId signature uid userData userName arrPriceLocaleId
    cpOrderId jfExtraJson orderType
    plain toString)");
  ExpectSlots(ShareInfo::New().get(), "ShareInfo", R"(
    get_ aLinkParams altTextMsg desc extJson failMsg iLinkParams image link linkParams linkTextMsg musicUrl objectValue
    roomId roomToken scope shareChannel subTextMsg templateId text textMsg timelineType title toUser toUserList type
    u3dShareBitmap u3dshareThumb videoUrl showShareDialog
    set_ aLinkParams altTextMsg desc extJson failMsg iLinkParams image link linkParams linkTextMsg musicUrl objectValue
    roomId roomToken scope shareChannel showShareDialog subTextMsg templateId text textMsg timelineType title toUser
    toUserList type u3dShareBitmap u3dshareThumb videoUrl
    set_ shareData get_ shareData plain toString get_ shareThumb shareBitmap set_ shareBitmap shareThumb
    get_ userName set_ userName get_ miniProgramType set_ miniProgramType get_ path set_ path get_ tag set_ tag)");
  ExpectSlots(SkuDetailsInfo::New("", "", "", "", "", "", "").get(), "SkuDetailsInfo", R"(
    get_ description price priceAmountMicros priceCurrencyCode productId title type
    set_ description price priceAmountMicros priceCurrencyCode productId title type plain toString)");
  ExpectSlots(QueryRankInfo::New().get(), "QueryRankInfo",
              "get_ type scope count set_ type scope count plain toString");
  ExpectSlots(AccountInfo::New().get(), "AccountInfo", R"(
    get_ accountId icon idType nickname rank rankScore relationType remark statusMessage inGame
    set_ accountId icon idType inGame nickname rank rankScore relationType remark statusMessage plain toString)");
  ExpectSlots(offline::MakePad({}).get(), "PadRecord",
              "get_ action deviceId eventTime keyCode motionKeyCode pressure state stateAction x y");
}

// The service calls the handler through its three slots.
TEST_F(Abi, TheSlotsOfTheDownloadHandlerReachItsFunctions) {
  Host host;
  host.Run(
      "calls = {} function note(name) return function(...) calls[#calls + 1] = {name, ...} end end "
      "velora.download.setSyncDownloadHandler{onInited = note('inited'), onProgress = note('progress'), "
      "onFinish = note('finish')}");
  void* handler = offline::Handlers().at(0);
  const auto finish = CallSlot<const char*, const void*, std::uint64_t>;
  CallSlot(handler, 0);
  CallSlot<const char*>(handler, 1, "50");
  CallSlot<const char*>(handler, 1, nullptr);
  finish(handler, 2, nullptr, "a\0b", 3);
  finish(handler, 2, "t", "x", 0);
  finish(handler, 2, "t", nullptr, 5);
  DeinitLuaVelora(host.L);
  CallSlot(handler, 0);
  EXPECT_EQ(host.Run("return table.unpack(calls)"),
            "{[1]=\"inited\"}, {[1]=\"progress\", [2]=\"50\"}, {[1]=\"progress\"}, "
            "{[1]=\"finish\", [2]=\"\", [3]=\"a\\0b\"}, {[1]=\"finish\", [2]=\"t\"}, "
            "{[1]=\"finish\", [2]=\"t\"}, {[1]=\"inited\"}");
  EXPECT_EQ(lua_gettop(host.L), 0);
}

// A share request passes the SDK a record with the caches, each in its own field, written in the order of the fields.
TEST_F(Abi, SharingWritesTheCachesIntoTheRecord) {
  Host host;
  static std::string operations;
  offline::SetCallHook([](const char* operation) { operations += std::string(operation) + ' '; });
  host.Run("velora.zvCheckArgs(velora.ShareInfo.new())");
  offline::SetCallHook(nullptr);
  std::string expected = "ShareInfo.New ";
  for (const std::string access : {"get_", "set_"})
    for (const char* name : {"aLinkParams", "altTextMsg", "iLinkParams", "linkParams", "linkTextMsg", "subTextMsg",
                             "textMsg", "toUserList"})
      expected += "ShareInfo." + access + name + ' ';
  EXPECT_EQ(operations, expected + "zvCheckArgs ");
  const auto content = [](void* share) {
    std::string text;
    luavelora::HolderIn<tarn::velora::ShareInfo>(share)->record->toString(text);
    return text;
  };
  for (const char* flush : {"velora.zvShare", "velora.zvCheckArgs", "tostring"}) {
    host.Run(R"(
      share = velora.ShareInfo.new() share:set_toUserList{'a'}
      for _, name in ipairs{'aLinkParams', 'altTextMsg', 'iLinkParams', 'linkParams', 'linkTextMsg', 'subTextMsg',
        'textMsg'} do share['set_' .. name](share, {k = name}) end)");
    lua_getglobal(host.L, "share");
    EXPECT_EQ(content(lua_touserdata(host.L, -1)), "ShareInfo() {}");
    host.Run(std::string(flush) + "(share)");
    EXPECT_EQ(content(lua_touserdata(host.L, -1)),
              "ShareInfo() {\"aLinkParams\":{\"k\":\"aLinkParams\"},\"altTextMsg\":{\"k\":\"altTextMsg\"},"
              "\"iLinkParams\":{\"k\":\"iLinkParams\"},\"linkParams\":{\"k\":\"linkParams\"},"
              "\"linkTextMsg\":{\"k\":\"linkTextMsg\"},\"subTextMsg\":{\"k\":\"subTextMsg\"},"
              "\"textMsg\":{\"k\":\"textMsg\"},\"toUserList\":[\"a\"]}");
  }
}

}  // namespace
}  // namespace tests
