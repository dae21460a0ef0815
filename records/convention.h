// The userdata class convention: which class stands for which record, method entry, pushing, collecting, text forms.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>

#include "binding/boundary.h"
#include "binding/conversions.h"
#include "platform/account_info.h"
#include "platform/order_info.h"
#include "platform/pad_record.h"
#include "platform/query_rank_info.h"
#include "platform/sku_details_info.h"
#include "records/holder.h"

namespace luavelora {

// The Lua side of a record: its class name, its metatable, its holder, and the texts of its constructor's and
// to-string function's errors.
template <class Record>
struct ClassOf;

#define VELORA_CLASS(Record, luaName, Holder_)                                          \
  template <>                                                                           \
  struct ClassOf<tarn::velora::Record> {                                                \
    using HolderType = Holder_;                                                         \
    static constexpr const char* kName = luaName;                                       \
    static constexpr const char* kMetatable = "Lua" luaName;                            \
    static constexpr const char* kUnsupported = "velora." luaName " is not supported!"; \
    static constexpr const char* kNoText = "str(velora." luaName ") error.";            \
  };
VELORA_CLASS(ProductInfo, "ProductInfo", ProductInfoHolder)
VELORA_CLASS(OrderInfo, "OrderInfo", SharedRecordHolder<tarn::velora::OrderInfo>)
VELORA_CLASS(QueryRankInfo, "QueryRankInfo", SharedRecordHolder<tarn::velora::QueryRankInfo>)
VELORA_CLASS(ShareInfo, "ShareInfo", ShareInfoHolder)
VELORA_CLASS(AccountInfo, "AccountInfo", SharedRecordHolder<tarn::velora::AccountInfo>)
VELORA_CLASS(SkuDetailsInfo, "SkuDetailsInfo", SharedRecordHolder<tarn::velora::SkuDetailsInfo>)
VELORA_CLASS(PadRecord, "PadEvent", SharedRecordHolder<tarn::velora::PadRecord>)
#undef VELORA_CLASS

template <class Record>
using HolderOf = typename ClassOf<Record>::HolderType;

// Method entry: the holder of the object at `index`, or null for anything else, finished objects included.
// Valid until something runs that can run Lua; pin it across SDK calls.
template <class Record>
HolderOf<Record>* Self(lua_State* L, int index = 1) {
  if (!CheckMetaTableInUserType(L, index, ClassOf<Record>::kMetatable)) return nullptr;
  return HolderAt<HolderOf<Record>>(L, index);
}

// Pushes userdata inside a protected call while living outside it: a fresh holder belongs to the pusher until the
// userdata that carries it has its metatable, so an error loses nothing.
class RecordPusher {
 public:
  // Takes the holder that the next Push is to carry. Runs no Lua.
  void Hold(FreshHolder fresh) { fresh_ = std::move(fresh); }

  // Holds a new holder of `reference`, or nothing where that is empty.
  template <class Record>
  void HoldReference(const std::shared_ptr<Record>& reference) {
    fresh_.reset(reference ? new HolderOf<Record>(reference) : nullptr);
  }

  // Pushes a new userdata for what is held. Gives nil for nothing, and where no userdata can own it: the state is
  // closing, or the class is not registered. May raise.
  template <class Record>
  void Push(lua_State* L) {
    if (state_ == nullptr) state_ = StateRecordOf(L);
    if (fresh_ == nullptr || state_ == nullptr) return PushNil(L);
    ToUserType(L, fresh_.get(), ClassOf<Record>::kMetatable);
    // Tested last: making it may have run script code, and so the closing.
    if (state_->closed || !IsRegistered(L, ClassOf<Record>::kMetatable)) {
      *static_cast<void**>(lua_touserdata(L, -1)) = nullptr;
      lua_pop(L, 1);
      return PushNil(L);
    }
    state_->Add(*fresh_.release());
  }

 private:
  // Whether the userdata on top got the metatable of its class. What is registered once stays until the closing.
  bool IsRegistered(lua_State* L, const char* metatable) {
    if (metatable == registered_) return true;
    if (lua_getmetatable(L, -1) == 0) return false;
    lua_pop(L, 1);
    registered_ = metatable;
    return true;
  }

  void PushNil(lua_State* L) {
    fresh_ = nullptr;
    lua_pushnil(L);
  }

  FreshHolder fresh_;
  StateRecord* state_ = nullptr;
  const char* registered_ = nullptr;
};

// Pushes a new table with a userdata for each record, nil for an empty reference. May raise.
template <class Record>
void PushRecordList(lua_State* L, RecordPusher& pusher, const std::vector<std::shared_ptr<Record>>& records) {
  lua_createtable(L, 0, 0);
  for (std::size_t k = 0; k < records.size(); ++k) {
    pusher.HoldReference(records[k]);
    pusher.Push<Record>(L);
    lua_rawseti(L, -2, static_cast<lua_Integer>(k + 1));
  }
}

// The outcome of a constructor: the userdata for `fresh`.
template <class Record>
Outcome GiveHolder(lua_State* L, FreshHolder fresh) {
  RecordPusher pusher;
  pusher.Hold(std::move(fresh));
  return PushProtected(L, [&pusher](lua_State* state) { pusher.Push<Record>(state); });
}

// The outcome of a constructor whose factory gave `reference`.
template <class Record>
Outcome GiveRecord(lua_State* L, const std::shared_ptr<Record>& reference) {
  if (!reference) return Outcome::Error(ClassOf<Record>::kUnsupported);
  return GiveHolder<Record>(L, FreshHolder(new HolderOf<Record>(reference)));
}

// The record of a class whose factories are New() and New(text), as the arguments choose; `give(reference)` has the
// last word. An argument 1 without text is refused.
template <class Record, class Give>
Outcome NewWithOptionalText(lua_State* L, Give give) {
  if (lua_gettop(L) == 0) return give(Record::New());
  const char* text = TextArgument(L, 1);
  return text == nullptr ? Refusal() : give(Record::New(text));
}

// `__gc`: detaches the holder from its userdata, so that whatever comes later meets a wrong self, and frees it.
template <class Record>
Outcome Collect(lua_State* L) {
  if (auto* holder = Self<Record>(L)) {
    *static_cast<void**>(lua_touserdata(L, 1)) = nullptr;
    holder->Release();
  }
  return Outcome::Results(0);
}

// `__tostring` where `fill(holder, out)` produces the text and reports success.
template <class Record, class Fill>
Outcome TextForm(lua_State* L, Fill fill) {
  HolderOf<Record>* holder = Self<Record>(L);
  if (holder == nullptr) return Refusal();
  bool filled = false;
  const Outcome outcome = TextResult(L, [&](std::string& out) {
    const Pin pin(*holder);
    return filled = fill(*holder, out);
  });
  return filled ? outcome : Outcome::Error(ClassOf<Record>::kNoText);
}

// `__tostring` of a class that asks its record and nothing else.
template <class Record>
Outcome RecordToString(lua_State* L) {
  return TextForm<Record>(L,
                          [](HolderOf<Record>& holder, std::string& out) { return (*holder.record)->toString(out); });
}

// Makes the class table from `lists` of rows, registers its metatable and stores it in the table on top of the stack.
template <class Record>
void RegisterClass(lua_State* L, std::initializer_list<const luaL_Reg*> lists) {
  lua_newtable(L);
  for (const luaL_Reg* rows : lists) luaL_setfuncs(L, rows, 0);
  InitUserTypeMetaTable(L, ClassOf<Record>::kMetatable);
  lua_setfield(L, -2, ClassOf<Record>::kName);
}

}  // namespace luavelora
