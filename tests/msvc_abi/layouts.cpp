// Compiled for an ABI against stand-ins of the standard library: the declarations of the platform hold their own
// assertions about offsets; those that depend on Visual Studio's sizes stand here. The calls make the compiler lay out
// each virtual table, which it prints.
#include "platform/account_info.h"
#include "platform/const_prop.h"
#include "platform/download.h"
#include "platform/event.h"
#include "platform/log.h"
#include "platform/operations.h"
#include "platform/order_info.h"
#include "platform/pad_record.h"
#include "platform/product_info.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"
#include "platform/sku_details_info.h"

namespace tarn::velora {

static_assert(sizeof(StringMap) == 64 && sizeof(IntMap) == 64);
static_assert(offsetof(ProductInfo, sdkPids) == 72 && offsetof(ProductInfo, channelGoodsTypes) == 136 &&
              offsetof(ProductInfo, jellRatios) == 200 && offsetof(ProductInfo, jellyExtra) == 264 &&
              offsetof(ProductInfo, ffChannel) == 296 && sizeof(ProductInfo) == 328);
static_assert(sizeof(PlainEvent) == 16 && sizeof(CodeEvent) == 24 && sizeof(FlagEvent) == 24 &&
              sizeof(PadPressureEvent) == 48 && sizeof(PadStickEvent) == 48 && sizeof(TextBytesEvent) == 56);

void CallEachTable(AccountInfo& account, OrderInfo& order, PadRecord& pad, QueryRankInfo& rank, ShareInfo& share,
                   SkuDetailsInfo& sku, download::SyncDownloadHandler& handler) {
  account.reserved();
  order.reserved();
  pad.reserved();
  rank.reserved();
  share.reserved();
  sku.reserved();
  handler.onInited();
}

}  // namespace tarn::velora
