// The virtual tables that module and SDK share, called by raw slot index.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

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

namespace offline = tarn::velora::offline;
using namespace tarn::velora;

using Abi = VeloraTest;

// Calls the operation in a virtual-table slot of `object`, as a compiled caller would.
template <class Result, class... Arguments>
Result CallSlot(void* object, std::size_t slot, Arguments... arguments) {
  void** table = *static_cast<void***>(object);
  return reinterpret_cast<Result (*)(void*, Arguments...)>(table[slot])(object, arguments...);
}

std::string Get(void* object, std::size_t slot, const std::string& family) {
  if (family == "Int" || family == "IntAsNumber") return std::to_string(CallSlot<std::int32_t>(object, slot));
  if (family == "Int64") return std::to_string(CallSlot<std::int64_t>(object, slot));
  if (family == "Float") return std::to_string(CallSlot<float>(object, slot));
  if (family == "Double") return std::to_string(CallSlot<double>(object, slot));
  if (family == "Bool") return CallSlot<bool>(object, slot) ? "true" : "false";
  if (family == "IntMap") {
    IntMap map;
    CallSlot<void, IntMap&>(object, slot, map);
    return std::to_string(map["k"]);
  }
  if (family == "StringMap" || family == "CachedMap" || family == "RecordMap") {
    StringMap map;
    CallSlot<bool, StringMap&>(object, slot, map);
    return map["k"];
  }
  if (family == "StrictList" || family == "CachedList") {
    StringList list;
    CallSlot<void, StringList&>(object, slot, list);
    return list.empty() ? "" : list[0];
  }
  std::string text;
  EXPECT_TRUE((CallSlot<bool, std::string&>(object, slot, text)));
  return text;
}

void Set(void* object, std::size_t slot, const std::string& family, int value) {
  const std::string text = std::to_string(value);
  if (family == "Int") return CallSlot<void, std::int32_t>(object, slot, value);
  if (family == "Int64") return CallSlot<void, std::int64_t>(object, slot, value);
  if (family == "Float") return CallSlot<void, float>(object, slot, static_cast<float>(value));
  if (family == "Double") return CallSlot<void, double>(object, slot, value);
  if (family == "Bool") return CallSlot<void, bool>(object, slot, true);
  if (family == "CachedMap" || family == "RecordMap")
    return CallSlot<void, const StringMap&>(object, slot, StringMap{{"k", text}});
  if (family == "StrictList" || family == "CachedList")
    return CallSlot<void, const StringList&>(object, slot, StringList{text});
  CallSlot<void, const std::string&>(object, slot, text);
}

std::string Expected(const std::string& family, int value) {
  if (family == "Bool") return "true";
  if (family == "Float") return std::to_string(static_cast<float>(value));
  if (family == "Double") return std::to_string(static_cast<double>(value));
  return std::to_string(value);
}

#define VELORA_FIELD(name, Family) {#name, #Family},
#define VELORA_FIELD_READ_ONLY(name, Family) {#name, #Family},
using Families = std::map<std::string, std::string>;

// The getters and setters by slot, from slot 1 on: "GET a b SET a b TEXT GET c ...".
struct Slot {
  char kind;
  std::string field;
};

std::vector<Slot> Slots(const std::string& description) {
  std::vector<Slot> slots = {{'-', ""}};
  char kind = '-';
  std::istringstream words(description);
  for (std::string word; words >> word;) {
    if (word == "GET" || word == "SET")
      kind = word[0];
    else if (word == "TEXT")
      slots.push_back({'T', ""});
    else
      slots.push_back({kind, word});
  }
  return slots;
}

constexpr int kFirstValue = 1000;

// Sets every field that has a setter slot, then reads every getter slot: a field's value tells its name's place.
// Fields without a setter must hold their place already.
void CheckSlots(void* object, const std::string& description, const Families& families) {
  const std::vector<Slot> slots = Slots(description);
  std::map<std::string, int> values;
  int next = kFirstValue;
  for (const auto& [field, family] : families) values[field] = next++;
  for (std::size_t slot = 1; slot < slots.size(); ++slot)
    if (slots[slot].kind == 'S') Set(object, slot, families.at(slots[slot].field), values[slots[slot].field]);
  std::size_t getters = 0;
  for (std::size_t slot = 1; slot < slots.size(); ++slot) {
    const std::string& field = slots[slot].field;
    if (slots[slot].kind == 'G') {
      EXPECT_EQ(Get(object, slot, families.at(field)), Expected(families.at(field), values[field])) << field;
      ++getters;
    } else if (slots[slot].kind == 'T') {
      EXPECT_NE(Get(object, slot, "String"), "") << slot;
    }
  }
  EXPECT_EQ(getters, families.size());
}

// The values that CheckSlots expects, for the fields that have no setter.
offline::Fields Values(const Families& families) {
  offline::Fields fields;
  int value = kFirstValue;
  for (const auto& [field, family] : families) {
    const std::string text = std::to_string(value);
    if (family == "Float" || family == "Double")
      fields[field] = static_cast<double>(value);
    else if (family == "IntMap")
      fields[field] = IntMap{{"k", value}};
    else if (family == "StringMap")
      fields[field] = StringMap{{"k", text}};
    else if (family == "String")
      fields[field] = text;
    else if (family.find("Int") == 0)
      fields[field] = std::int64_t{value};
    ++value;
  }
  return fields;
}

TEST_F(Abi, OrderInfo) {
  const Families families = {
#include "platform/order_info.def"
  };
  auto order = offline::MakeOrder(Values(families));
  CheckSlots(order.get(), R"(
    GET aid count curOrderChannel externalChannelId ffChannel jfCode jfExtInfo extendJson jfAasFfCode jfAasFfRule
    jfMessage veloraJfExtCid jfGas3Url jfSubCode orderChannel orderCurrency orderDesc orderErrReason orderErrCode
    orderEtc orderId orderStatus productCurrentPrice productExchangeRatio productId productName productPrice
    qrCodeParams sdkOrderId sdkPids serverId signature uid userData userName arrPriceLocaleId receipt qrCodeOrder
    channelGoodsTypes jellRatios jellyExtra cpOrderId jfExtraJson timeStamp orderType
    TEXT
    SET aid count externalChannelId qrCodeOrder jfCode jfExtInfo extendJson jfAasFfCode jfAasFfRule jfMessage
    veloraJfExtCid jfGas3Url jfSubCode orderChannel orderCurrency orderDesc orderErrReason orderEtc orderId orderStatus
    productCurrentPrice productId qrCodeParams sdkOrderId serverId signature uid userData userName arrPriceLocaleId
    cpOrderId jfExtraJson orderType
    TEXT)",
             families);
}

TEST_F(Abi, ShareInfo) {
  const Families families = {
#include "platform/share_info.def"
  };
  auto share = tarn::velora::ShareInfo::New();
  CheckSlots(share.get(), R"(
    GET aLinkParams altTextMsg desc extJson failMsg iLinkParams image link linkParams linkTextMsg musicUrl objectValue
    roomId roomToken scope shareChannel subTextMsg templateId text textMsg timelineType title toUser toUserList type
    u3dShareBitmap u3dshareThumb videoUrl showShareDialog
    SET aLinkParams altTextMsg desc extJson failMsg iLinkParams image link linkParams linkTextMsg musicUrl objectValue
    roomId roomToken scope shareChannel showShareDialog subTextMsg templateId text textMsg timelineType title toUser
    toUserList type u3dShareBitmap u3dshareThumb videoUrl
    SET shareData GET shareData TEXT GET shareThumb shareBitmap SET shareBitmap shareThumb
    GET userName SET userName GET miniProgramType SET miniProgramType GET path SET path GET tag SET tag)",
             families);
}

TEST_F(Abi, SmallRecords) {
  const Families sku = {
#include "platform/sku_details_info.def"
  };
  CheckSlots(SkuDetailsInfo::New("1", "2", "3", "4", "5", "6", "7").get(), R"(
    GET description price priceAmountMicros priceCurrencyCode productId title type
    SET description price priceAmountMicros priceCurrencyCode productId title type TEXT)",
             sku);
  const Families rank = {
#include "platform/query_rank_info.def"
  };
  CheckSlots(QueryRankInfo::New().get(), "GET type scope count SET type scope count TEXT", rank);
  const Families account = {
#include "platform/account_info.def"
  };
  CheckSlots(AccountInfo::New().get(), R"(
    GET accountId icon idType nickname rank rankScore relationType remark statusMessage inGame
    SET accountId icon idType inGame nickname rank rankScore relationType remark statusMessage TEXT)",
             account);
  const Families pad = {
#include "platform/pad_record.def"
  };
  CheckSlots(offline::MakePad(Values(pad)).get(),
             "GET action deviceId eventTime keyCode motionKeyCode pressure state stateAction x y", pad);
}

TEST_F(Abi, TheDownloadHandlerHasThreeSlots) {
  Host host;
  host.Run(
      "calls = {} function note(name) return function(...) calls[#calls + 1] = {name, ...} end end "
      "velora.download.setSyncDownloadHandler{onInited = note('inited'), onProgress = note('progress'), "
      "onFinish = note('finish')}");
  void* handler = offline::Handlers().at(0);
  CallSlot<void>(handler, 0);
  CallSlot<void, const char*>(handler, 1, "50");
  CallSlot<void, const char*, const void*, std::uint64_t>(handler, 2, "done", "a\0b", 3);
  EXPECT_EQ(host.Run("return table.unpack(calls)"),
            "{[1]=\"inited\"}, {[1]=\"progress\", [2]=\"50\"}, {[1]=\"finish\", [2]=\"done\", [3]=\"a\\0b\"}");
}

TEST_F(Abi, TheTwoTextsOfAnOrderHaveTheirOwnSlots) {
  offline::SetAnswer("OrderInfo.produceCartInfo", std::string("cart"));
  offline::SetAnswer("OrderInfo.toString", std::string("text"));
  auto order = offline::MakeOrder({});
  EXPECT_EQ(Get(order.get(), 1 + 45, "String"), "cart");
  EXPECT_EQ(Get(order.get(), 1 + 45 + 1 + 33, "String"), "text");
}

// A share hands the SDK a record that holds the caches, each in its own field.
TEST_F(Abi, SharingWritesTheCachesIntoTheRecord) {
  using tarn::velora::ShareInfo;
  struct CachedMap {
    const char* name;
    void (ShareInfo::*get)(StringMap&);
  };
  const CachedMap maps[] = {
      {"aLinkParams", &ShareInfo::get_aLinkParams}, {"altTextMsg", &ShareInfo::get_altTextMsg},
      {"iLinkParams", &ShareInfo::get_iLinkParams}, {"linkParams", &ShareInfo::get_linkParams},
      {"linkTextMsg", &ShareInfo::get_linkTextMsg}, {"subTextMsg", &ShareInfo::get_subTextMsg},
      {"textMsg", &ShareInfo::get_textMsg},
  };
  Host host;
  for (const char* wrapper : {"zvShare", "zvCheckArgs"}) {
    host.Run("share = velora.ShareInfo.new() share:set_toUserList{'a'}");
    for (const CachedMap& map : maps) host.Run(std::string("share:set_") + map.name + "{k = '" + map.name + "'}");
    lua_getglobal(host.L, "share");
    auto& record = **luavelora::HolderAt<luavelora::ShareInfoHolder>(host.L, -1)->record;
    for (const bool shared : {false, true}) {
      if (shared) host.Run(std::string("velora.") + wrapper + "(share)");
      for (const CachedMap& map : maps) {
        StringMap content;
        (record.*map.get)(content);
        EXPECT_EQ(content, (shared ? StringMap{{"k", map.name}} : StringMap{})) << map.name;
      }
      StringList users;
      record.get_toUserList(users);
      EXPECT_EQ(users, (shared ? StringList{"a"} : StringList{}));
    }
    lua_pop(host.L, 1);
  }
}

}  // namespace
}  // namespace tests
