// The module's three entry points. Call them on the thread that owns the Lua state and pass its main state, not a
// coroutine. They leave the Lua stack as it was and have no error result. No C++ exception leaves them, but Lua errors
// do, so call them in protected mode: out of memory, a full Lua stack, too many nested C calls, an error of a hook, an
// exception of the SDK (`RegisterChannel`, `SwapEvents`), in InitLuaVelora an error of a `__newindex` of the globals
// table, and in DeinitLuaVelora without InitLuaVelora an error of a finalizer. docs/embedding.md has the details.
#pragma once

struct lua_State;

// The version of the module that this header belongs to.
#define LUA_VELORA_VERSION_MAJOR 1
#define LUA_VELORA_VERSION_MINOR 0
#define LUA_VELORA_VERSION_PATCH 0
#define LUA_VELORA_STRING_OF(major, minor, patch) #major "." #minor "." #patch
#define LUA_VELORA_JOIN(major, minor, patch) LUA_VELORA_STRING_OF(major, minor, patch)
#define LUA_VELORA_VERSION LUA_VELORA_JOIN(LUA_VELORA_VERSION_MAJOR, LUA_VELORA_VERSION_MINOR, LUA_VELORA_VERSION_PATCH)

#if defined(_WIN32) && defined(VELORA_MODULE_BUILD)
#define LUA_VELORA_API __declspec(dllexport)
#elif defined(_WIN32)
#define LUA_VELORA_API
#else
#define LUA_VELORA_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

// Builds the global table `velora`. Call it once, before any script uses the module; a second call builds a new
// table and leaves existing objects valid.
LUA_VELORA_API void InitLuaVelora(struct lua_State* L);

// Calls the scripts' callbacks for all events that the SDK has queued. Call it once per frame. Errors of callbacks are
// logged and do not reach the host.
LUA_VELORA_API void UpdateLuaVelora(struct lua_State* L);

// Removes all event callbacks. Call it once at shutdown, before the Lua state is closed. Does not change the table
// `velora`, objects that scripts have, or a registered download handler.
LUA_VELORA_API void DeinitLuaVelora(struct lua_State* L);

#ifdef __cplusplus
}
#endif
