// The six helpers between record holders and Lua userdata. All run on the thread that owns the Lua state. They raise
// only Lua's memory error, or the error of a finalizer that the collector runs. Metatables and callback tables are kept
// in the Lua registry under the given names, so a class and a callback table must have different names.
#pragma once

#include <cstdint>
#include <lua.hpp>

// Pushes a new full userdata that contains `pointer` and has the metatable registered under `name`. The class's `__gc`
// must free the pointer. If this raises, the caller still owns it.
void ToUserType(lua_State* L, void* pointer, const char* name);

// Returns the pointer in the userdata at `index`. Call it only after CheckMetaTableInUserType has returned true.
void* FromUserType(lua_State* L, std::int32_t index);

// Returns true if the value at `index` is a full userdata whose metatable is the one registered under `name`, and false
// for any other value or none.
bool CheckMetaTableInUserType(lua_State* L, std::int32_t index, const char* name);

// Registers a metatable under `name` for the class table on top of the stack, and leaves the stack unchanged. Methods
// of objects are looked up in the class table; scripts can neither get nor change the metatable. If the name is
// registered already, its metatable is kept, so that older objects stay valid, and refers to the new class table.
void InitUserTypeMetaTable(lua_State* L, const char* name);

// Pushes the table registered under `name`, which is created on first use and kept for the life of the state.
void GetSdkCallbackTable(lua_State* L, const char* name);

// Returns the low 32 bits of the raw length of the table on top of the stack. Runs no script code.
std::int32_t GetLuaTableLen(lua_State* L);
