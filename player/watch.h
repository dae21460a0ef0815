// --watch: plays the script again when a file changes that it was loaded from. Looks at the files a few times a second.
#pragma once

#include <filesystem>
#include <lua.hpp>

namespace player {

// Starts to watch the script, and no other file.
void WatchScript(const std::filesystem::path& script);

// From now on, watches each file that `require` loads a module from, or fails to. May raise a memory error.
void WatchModules(lua_State* L);

// Returns whether a watched file has changed. Without one, always false.
bool WatchedFileChanged();

// Waits until a watched file has changed. Returns false if Ctrl-C comes first.
bool WaitForChange();

}  // namespace player
