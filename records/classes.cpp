#include "records/classes.h"

#include "binding/helpers/metatables.h"
#include "records/push.h"

namespace luavelora {
namespace {

// Makes the class's objects a wrong self and lets no new ones be created. Removes the finalizer too, since the holders
// of objects that Lua collects later no longer exist.
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
