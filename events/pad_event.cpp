// `PadEvent`: read-only access to the SDK's controller record. Getters read the record on every call.
#include "events/pad_event.h"

#include "records/fields.h"

namespace luavelora {
namespace {

using tarn::velora::PadRecord;

const luaL_Reg kFunctions[] = {
    Row<Collect<PadRecord>>("__gc"),
#define VELORA_FIELD_READ_ONLY(name, Family) VELORA_GETTER(PadRecord, name, Family),
#include "platform/pad_record.def"
    {nullptr, nullptr},
};

}  // namespace

void RegisterPadEvent(lua_State* L) { RegisterClass<PadRecord>(L, kFunctions, nullptr); }

}  // namespace luavelora
