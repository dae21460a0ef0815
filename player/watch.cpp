#include "player/watch.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <system_error>
#include <thread>
#include <vector>

#include "player/interrupt.h"
#include "player/terminal.h"

namespace player {
namespace {

using Clock = std::chrono::steady_clock;
constexpr Clock::duration kInterval = std::chrono::milliseconds(150);

// Identifies a version of a file. That of an unreadable file is the default.
struct Stamp {
  std::filesystem::file_time_type time{};
  std::uintmax_t size = 0;
  bool operator==(const Stamp&) const = default;
};

struct File {
  std::filesystem::path path;
  Stamp stamp;
};

std::vector<File> files;
Clock::time_point lastCheck;
bool hasChanged = false;

Stamp GetStamp(const std::filesystem::path& path) {
  std::error_code error;
  Stamp stamp;
  stamp.time = std::filesystem::last_write_time(path, error);
  if (!error) stamp.size = std::filesystem::file_size(path, error);
  return error ? Stamp() : stamp;
}

void Watch(const std::filesystem::path& path) {
  for (const File& file : files)
    if (file.path == path) return;
  files.push_back({path, GetStamp(path)});
}

// Returns false for a missing file, since an editor may delete a file just before it writes it.
bool HasChanged(const File& file) {
  const Stamp stamp = GetStamp(file.path);
  return stamp != Stamp() && stamp != file.stamp;
}

void CheckFiles() {
  lastCheck = Clock::now();
  for (const File& file : files) {
    if (hasChanged || !HasChanged(file)) continue;
    hasChanged = true;
    std::fprintf(stderr, "%s[watch]%s %s has changed\n", Yellow(), ResetColour(), file.path.string().c_str());
  }
}

// Watches the module's file, then calls the standard searcher. Upvalues: the searcher for Lua modules,
// package.searchpath, the table `package`.
int Search(lua_State* L) {
  lua_settop(L, 1);
  lua_pushvalue(L, lua_upvalueindex(2));
  lua_pushvalue(L, 1);
  lua_getfield(L, lua_upvalueindex(3), "path");
  if (lua_pcall(L, 2, 1, 0) == LUA_OK && lua_type(L, -1) == LUA_TSTRING) Watch(lua_tostring(L, -1));
  lua_settop(L, 1);
  lua_pushvalue(L, lua_upvalueindex(1));
  lua_insert(L, 1);
  lua_call(L, 1, LUA_MULTRET);
  return lua_gettop(L);
}

}  // namespace

void WatchScript(const std::filesystem::path& script) {
  files.clear();
  hasChanged = false;
  Watch(script);
}

void WatchModules(lua_State* L) {
  constexpr lua_Integer kLuaSearcher = 2;
  lua_getglobal(L, "package");
  lua_getfield(L, -1, "searchers");
  lua_rawgeti(L, -1, kLuaSearcher);
  lua_getfield(L, -3, "searchpath");
  lua_pushvalue(L, -4);
  lua_pushcclosure(L, Search, 3);
  lua_rawseti(L, -2, kLuaSearcher);
  lua_pop(L, 2);
}

bool WatchedFileChanged() {
  if (!files.empty() && !hasChanged && Clock::now() - lastCheck >= kInterval) CheckFiles();
  return hasChanged;
}

bool WaitForChange() {
  while (!WatchedFileChanged()) {
    if (Interrupted()) return false;
    std::this_thread::sleep_for(kInterval);
  }
  std::this_thread::sleep_for(kInterval);  // the editor may still be writing
  return !Interrupted();
}

}  // namespace player
