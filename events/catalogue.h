// Pushes the callback arguments of an event: the fields of its layout in order. There is a PushField for each type of
// field. All of them may raise; they run inside the pump's protected call.
#pragma once

#include "binding/conversions.h"
#include "platform/event.h"
#include "records/push.h"

namespace luavelora {

inline void PushField(lua_State* L, ModuleState&, std::int32_t value) { lua_pushinteger(L, value); }
inline void PushField(lua_State* L, ModuleState&, std::uint8_t flag) { lua_pushboolean(L, flag != 0); }
inline void PushField(lua_State* L, ModuleState&, float value) { lua_pushnumber(L, value); }
inline void PushField(lua_State* L, ModuleState&, const std::string& text) { lua_pushstring(L, text.c_str()); }

inline void PushField(lua_State* L, ModuleState&, const tarn::velora::StringList& list) { PushContainer(L, list); }

inline void PushField(lua_State* L, ModuleState&, const tarn::velora::ByteBlock* block) {
  if (block == nullptr)
    lua_pushnil(L);
  else
    lua_pushlstring(L, reinterpret_cast<const char*>(block->data), static_cast<std::size_t>(block->size));
}

template <class Record>
void PushField(lua_State* L, ModuleState& state, const std::shared_ptr<Record>& record) {
  PushRecord(L, state, record);
}

template <class Record>
void PushField(lua_State* L, ModuleState& state, const std::vector<std::shared_ptr<Record>>& records) {
  PushRecordList(L, state, records);
}

// Pushes the arguments for `event` and returns their number.
template <class Layout>
int PushArguments(lua_State* L, ModuleState& state, const Layout& event) {
  constexpr auto kFields = tarn::velora::kPayload<Layout>;
  std::apply([&](auto... field) { (PushField(L, state, event.*field), ...); }, kFields);
  return static_cast<int>(std::tuple_size_v<decltype(kFields)>);
}

}  // namespace luavelora
