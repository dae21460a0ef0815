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

// Loads the library `file`, which stays loaded until the process ends. Throws std::runtime_error with a one-line
// message.
Module LoadModule(const std::filesystem::path& file);

// Returns the path of the module's library: in the folder of the running program or, if installed on Linux, in ../lib.
std::filesystem::path DefaultModule();

}  // namespace player
