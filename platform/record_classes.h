// The names of the record classes in Lua.
#pragma once

#include "platform/account_info.h"
#include "platform/order_info.h"
#include "platform/pad_record.h"
#include "platform/product_info.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"
#include "platform/sku_details_info.h"

namespace tarn::velora {

// The classes in the order of their rows.
enum RecordClass {
#define VELORA_CLASS(Record, luaName) k##Record##Class,
#include "platform/records.def"
  kRecordClasses
};

// kName is the name of the class table, kMetatable that of the metatable of its objects.
template <class Record>
struct ClassNames;

#define VELORA_CLASS(Record, luaName)                        \
  template <>                                                \
  struct ClassNames<Record> {                                \
    static constexpr RecordClass kClass = k##Record##Class;  \
    static constexpr const char* kName = luaName;            \
    static constexpr const char* kMetatable = "Lua" luaName; \
  };
#include "platform/records.def"

}  // namespace tarn::velora
