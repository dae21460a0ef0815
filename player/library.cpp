#include "player/library.h"

#include <stdexcept>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace player {
namespace {

#if defined(_WIN32)

using Handle = HMODULE;
constexpr const char* kModulePaths[] = {"LuaVelora.dll"};

std::string LastError() { return std::system_category().message(static_cast<int>(GetLastError())); }

Handle Open(std::filesystem::path file) { return LoadLibraryW(file.make_preferred().c_str()); }

// Casts via void (*)(), since GCC warns of a direct cast between other function types.
void* Find(Handle library, const char* name) {
  return reinterpret_cast<void*>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
}

std::filesystem::path OwnPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw std::runtime_error("cannot find the program's path: " + LastError());
    if (length < path.size()) return path.substr(0, length);
    path.resize(path.size() * 2);
  }
}

#else

using Handle = void*;
constexpr const char* kModulePaths[] = {"LuaVelora.so", "../lib/LuaVelora.so"};

std::string LastError() {
  const char* text = dlerror();
  return text != nullptr ? text : "unknown error";
}

Handle Open(const std::filesystem::path& file) { return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL); }

void* Find(Handle library, const char* name) { return dlsym(library, name); }

std::filesystem::path OwnPath() { return std::filesystem::read_symlink("/proc/self/exe"); }

#endif

template <class Function>
void Resolve(Handle library, const std::filesystem::path& file, const char* name, Function& function) {
  function = reinterpret_cast<Function>(Find(library, name));
  if (function == nullptr) throw std::runtime_error("module " + file.string() + " has no entry point " + name);
}

}  // namespace

Module LoadModule(const std::filesystem::path& file) {
  const Handle library = Open(std::filesystem::absolute(file));  // a bare name would be searched for
  if (library == nullptr) throw std::runtime_error("cannot load module " + file.string() + ": " + LastError());
  Module module{};
  Resolve(library, file, "InitLuaVelora", module.init);
  Resolve(library, file, "UpdateLuaVelora", module.update);
  Resolve(library, file, "DeinitLuaVelora", module.deinit);
  return module;
}

std::filesystem::path DefaultModule() {
  const std::filesystem::path folder = OwnPath().parent_path();
  for (const char* path : kModulePaths) {
    if (std::filesystem::exists(folder / path)) return folder / path;
  }
  return folder / kModulePaths[0];
}

}  // namespace player
