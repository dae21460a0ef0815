// `PadEvent`: a read-only view of the SDK's controller record. Every getter asks the record anew.
#include "events/pad_event.h"

#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::PadRecord;

const luaL_Reg kFunctions[] = {
    {"__gc", Entry<Collect<PadRecord>>},
#define VELORA_FIELD_READ_ONLY(name, Family) VELORA_GETTER(PadRecord, name, Family),
#include "platform/pad_record.def"
#undef VELORA_FIELD_READ_ONLY
    {nullptr, nullptr},
};

}  // namespace

void RegisterPadEvent(lua_State* L) { RegisterClass<PadRecord>(L, {kFunctions}); }

}  // namespace luavelora
