// What each event layout gives its callback. A layout is a pair of overloads at most: Prepare makes the record holder
// before the callback is fetched, Push pushes the arguments and gives their number. Both run inside the pump's
// protected call and may raise.
#pragma once

#include "platform/event.h"
#include "records/convention.h"

namespace luavelora {

inline void PushText(lua_State* L, const std::string& text) { lua_pushstring(L, text.c_str()); }

inline void PushBlock(lua_State* L, const tarn::velora::ByteBlock* block) {
  if (block == nullptr)
    lua_pushnil(L);
  else
    lua_pushlstring(L, reinterpret_cast<const char*>(block->data), static_cast<std::size_t>(block->size));
}

// Layouts without a record have nothing to prepare.
inline void Prepare(RecordPusher&, const tarn::velora::Event&) {}
inline void Prepare(RecordPusher& pusher, const tarn::velora::PadKeyEvent& event) { pusher.HoldReference(event.pad); }
inline void Prepare(RecordPusher& pusher, const tarn::velora::PadPressureEvent& event) {
  pusher.HoldReference(event.pad);
}
inline void Prepare(RecordPusher& pusher, const tarn::velora::PadStickEvent& event) { pusher.HoldReference(event.pad); }
inline void Prepare(RecordPusher& pusher, const tarn::velora::PadStateEvent& event) { pusher.HoldReference(event.pad); }
inline void Prepare(RecordPusher& pusher, const tarn::velora::OrderEvent& event) { pusher.HoldReference(event.order); }
inline void Prepare(RecordPusher& pusher, const tarn::velora::AccountEvent& event) {
  pusher.HoldReference(event.account);
}

inline int Push(lua_State*, RecordPusher&, const tarn::velora::PlainEvent&) { return 0; }

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::CodeEvent& event) {
  lua_pushinteger(L, event.code);
  return 1;
}

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::CodeTextEvent& event) {
  lua_pushinteger(L, event.code);
  PushText(L, event.text);
  return 2;
}

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::FlagEvent& event) {
  lua_pushboolean(L, event.flag != 0);
  return 1;
}

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::TextEvent& event) {
  PushText(L, event.text);
  return 1;
}

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::TextPairEvent& event) {
  PushText(L, event.first);
  PushText(L, event.second);
  return 2;
}

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::TextListEvent& event) {
  PushStringList(L, event.texts);
  return 1;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::PadKeyEvent& event) {
  lua_pushinteger(L, event.keyCode);
  pusher.Push<tarn::velora::PadRecord>(L);
  return 2;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::PadPressureEvent& event) {
  lua_pushinteger(L, event.keyCode);
  lua_pushnumber(L, event.pressure);
  pusher.Push<tarn::velora::PadRecord>(L);
  return 3;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::PadStickEvent& event) {
  lua_pushnumber(L, event.x);
  lua_pushnumber(L, event.y);
  pusher.Push<tarn::velora::PadRecord>(L);
  return 3;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::PadStateEvent&) {
  pusher.Push<tarn::velora::PadRecord>(L);
  return 1;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::OrderEvent&) {
  pusher.Push<tarn::velora::OrderInfo>(L);
  return 1;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::AccountEvent&) {
  pusher.Push<tarn::velora::AccountInfo>(L);
  return 1;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::AccountListEvent& event) {
  PushRecordList(L, pusher, event.accounts);
  return 1;
}

inline int Push(lua_State* L, RecordPusher& pusher, const tarn::velora::SkuListEvent& event) {
  PushRecordList(L, pusher, event.skus);
  return 1;
}

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::BytesEvent& event) {
  PushBlock(L, event.bytes);
  return 1;
}

inline int Push(lua_State* L, RecordPusher&, const tarn::velora::TextBytesEvent& event) {
  PushText(L, event.text);
  PushBlock(L, event.bytes);
  return 2;
}

}  // namespace luavelora
