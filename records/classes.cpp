// What happens to the classes when a state closes.
#include "records/classes.h"

#include "binding/helpers/metatables.h"
#include "records/push.h"

namespace luavelora {
namespace {

// Its objects are a wrong self from now on, and no new ones are made. Without a finalizer, those that Lua collects
// later are not asked for their holders, which are gone.
template <class Record>
void Unregister(lua_State* L, const ModuleState& state) {
  if (PushMetatable<Record>(L, state)) {
    lua_pushnil(L);
    lua_setfield(L, -2, "__gc");
    lua_pushnil(L);
    lua_rawseti(L, -2, kClassMark);
  }
  lua_pop(L, 1);
  RemoveUserTypeMetaTable(L, tarn::velora::ClassNames<Record>::kMetatable);
}

}  // namespace

void UnregisterClasses(lua_State* L, const ModuleState& state) {
#define VELORA_CLASS(Record, luaName) Unregister<tarn::velora::Record>(L, state);
#include "platform/records.def"
}

}  // namespace luavelora
