// The module's three entry points. Call each on the thread that owns the Lua state, with its main state, not a
// coroutine; each leaves the Lua stack as it found it. They have no error result. No C++ exception escapes. Lua errors
// do, so call them in protected mode: memory that runs out, a full Lua stack, too many nested C calls, hooks that
// raise, exceptions of the SDK (`RegisterChannel`, `SwapEvents`), in InitLuaVelora an error of a `__newindex` on the
// globals table, and in DeinitLuaVelora without InitLuaVelora an error of a finalizer. docs/embedding.md has the list.
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
// table and leaves objects made before it valid.
LUA_VELORA_API void InitLuaVelora(struct lua_State* L);

// Hands every event that the SDK has queued to the script's callbacks. Call it once per frame. Errors of callbacks
// are logged and never reach the host.
LUA_VELORA_API void UpdateLuaVelora(struct lua_State* L);

// Forgets all event callbacks. Call it once at shutdown, while the Lua state still exists. The table `velora`,
// objects that scripts hold and a registered download handler stay as they are.
LUA_VELORA_API void DeinitLuaVelora(struct lua_State* L);

#ifdef __cplusplus
}
#endif
