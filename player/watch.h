// --watch: detects changes of the script and of its modules, by comparing time and size of the files.
#pragma once

#include <filesystem>
#include <lua.hpp>

namespace player {

// Starts to watch the script, and stops watching all other files.
void WatchScript(const std::filesystem::path& script);

// Makes `require` watch each file that it finds, even if loading it fails. May raise a memory error.
void WatchModules(lua_State* L);

// Returns whether a watched file has changed. Checks the files at most every 150 ms.
bool WatchedFileChanged();

// Waits until a watched file has changed. Returns false if Ctrl-C comes first.
bool WaitForChange();

}  // namespace player
