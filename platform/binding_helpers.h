// The six helpers between record holders and Lua userdata. All run on the thread that owns the Lua state;
// each raises nothing of its own, only Lua's memory error or that of a finalizer that the collector runs.
// What they keep is in the Lua registry under the names given, so a class and a callback table must not share one.
#pragma once

#include <cstdint>
#include <lua.hpp>

// Pushes a new full userdata that carries `pointer` and the metatable registered under `name`. The userdata
// does not own the pointer: the class's `__gc` frees it. When this raises, the pointer is still the caller's.
void ToUserType(lua_State* L, void* pointer, const char* name);

// The pointer carried by the userdata at `index`; call it only after CheckMetaTableInUserType said true.
void* FromUserType(lua_State* L, std::int32_t index);

// True when the value at `index` is a full userdata whose metatable is the one registered under `name`.
// Answers false for everything else, an index without a value included; raises no error of its own.
bool CheckMetaTableInUserType(lua_State* L, std::int32_t index, const char* name);

// Registers a metatable under `name`, made from the class table on top of the stack, and leaves the stack as it
// is. Methods of objects are looked up in the class table; scripts can neither fetch nor change the metatable.
// Registering a name again keeps the metatable, so that older objects stay valid, and leads it to the new table.
void InitUserTypeMetaTable(lua_State* L, const char* name);

// Pushes the table kept under `name` for the life of the state; made empty on first use.
void GetSdkCallbackTable(lua_State* L, const char* name);

// The raw length of the table on top of the stack, low 32 bits; runs no script code.
std::int32_t GetLuaTableLen(lua_State* L);
