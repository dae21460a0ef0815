# Lua 5.3 as `lua_headers` (what compiling needs), `lua` (Lua built as C, which hosts ship) and, where the machine has
# it, `lua_cxx` (Lua built as C++, whose errors are exceptions).
find_package(PkgConfig REQUIRED)
pkg_check_modules(LUA53 REQUIRED IMPORTED_TARGET lua5.3)
pkg_check_modules(LUA53CXX IMPORTED_TARGET lua5.3-c++)

add_library(lua_headers INTERFACE)
target_include_directories(lua_headers SYSTEM INTERFACE ${LUA53_INCLUDE_DIRS})
add_library(lua ALIAS PkgConfig::LUA53)
if(TARGET PkgConfig::LUA53CXX)
  add_library(lua_cxx ALIAS PkgConfig::LUA53CXX)
endif()
