// Parameters of wrappers that are records.
#pragma once

#include "binding/wrapper.h"
#include "records/self.h"
#include "records/share_info.h"

namespace luavelora {

// A record as argument of an SDK call, pinned for the call. A share request is flushed first.
template <class Record>
class RecordArgument {
 public:
  explicit RecordArgument(HolderOf<Record>& holder) : pin_(holder), reference_(holder.record) {
    if constexpr (std::is_same_v<Record, tarn::velora::ShareInfo>) FlushShare(holder);
  }
  operator const std::shared_ptr<Record>&() const { return reference_; }

 private:
  Pin pin_;
  const std::shared_ptr<Record>& reference_;
};

template <class Record>
struct Parameter<const std::shared_ptr<Record>&> {
  using View = HolderOf<Record>*;
  static bool Test(lua_State*, int) { return true; }
  static View Read(lua_State* L, int index) { return SelfAndNoMore<Record>(L, index); }
  static RecordArgument<Record> Make(View view) { return RecordArgument<Record>(*view); }
};

}  // namespace luavelora
