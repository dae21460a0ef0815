// Loads the module by file name, as a game does.
#pragma once

#include <filesystem>

#include "module/lua_velora.h"

namespace player {

// The module's entry points.
struct Module {
  decltype(&InitLuaVelora) init;
  decltype(&UpdateLuaVelora) update;
  decltype(&DeinitLuaVelora) deinit;
};

// Loads the library `file`. It stays loaded until the process ends. Throws std::runtime_error with a message
// of one line.
Module LoadModule(const std::filesystem::path& file);

// Returns the path of the module's library: beside the running program or, as installed on Linux, in ../lib.
std::filesystem::path DefaultModule();

}  // namespace player
