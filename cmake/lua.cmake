# Lua 5.3 as `velora_lua_headers` (what compiling needs), `velora_lua` (Lua built as C, which hosts ship; for hosts
# `LuaVelora::Lua`) and, where the machine has it, `velora_lua_cxx` (Lua built as C++, whose errors are exceptions).
add_library(velora_lua_headers INTERFACE)

if(NOT WIN32)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(VELORA_LUA REQUIRED IMPORTED_TARGET GLOBAL lua5.3)
  pkg_check_modules(VELORA_LUA_CXX IMPORTED_TARGET GLOBAL lua5.3-c++)
  target_include_directories(velora_lua_headers SYSTEM INTERFACE ${VELORA_LUA_INCLUDE_DIRS})
  add_library(velora_lua ALIAS PkgConfig::VELORA_LUA)
  add_library(LuaVelora::Lua ALIAS PkgConfig::VELORA_LUA)
  if(TARGET PkgConfig::VELORA_LUA_CXX)
    add_library(velora_lua_cxx ALIAS PkgConfig::VELORA_LUA_CXX)
  endif()
  return()
endif()

set(VELORA_LUA_DLL lua53 CACHE STRING "The DLL, without .dll, from which the module imports Lua: the host's own")
set(VELORA_LUA_SOURCE "" CACHE PATH "Lua 5.3's source, with its folder src; empty: Debian's, fetched when configuring")
if(NOT VELORA_LUA_SOURCE AND CMAKE_HOST_WIN32)
  message(FATAL_ERROR "VELORA_LUA_SOURCE must name the folder of Lua 5.3's source")
elseif(NOT VELORA_LUA_SOURCE)
  set(source ${PROJECT_BINARY_DIR}/lua)
  execute_process(COMMAND ${PROJECT_SOURCE_DIR}/tools/fetch_lua ${source} COMMAND_ERROR_IS_FATAL ANY)
else()
  set(source ${VELORA_LUA_SOURCE})
endif()
target_include_directories(velora_lua_headers SYSTEM INTERFACE ${source}/src)
target_compile_definitions(velora_lua_headers INTERFACE LUA_BUILD_AS_DLL)

set(VELORA_LUA_HEADERS lua.h luaconf.h lualib.h lauxlib.h lua.hpp)  # the public ones
file(GLOB sources ${source}/src/*.c)
list(FILTER sources EXCLUDE REGEX "/luac?\\.c$")
add_library(velora_lua SHARED ${sources})
add_library(LuaVelora::Lua ALIAS velora_lua)
set_target_properties(velora_lua PROPERTIES PREFIX "" OUTPUT_NAME ${VELORA_LUA_DLL})
target_compile_definitions(velora_lua PUBLIC LUA_BUILD_AS_DLL)
target_include_directories(velora_lua SYSTEM INTERFACE $<BUILD_INTERFACE:${source}/src>)
list(TRANSFORM VELORA_LUA_HEADERS PREPEND ${source}/src/)

# The same sources as C++, for the tests. Without LUA_BUILD_AS_DLL Debian's header gives the functions C names; exporting
# everything makes up for its marks.
add_library(velora_lua_cxx SHARED EXCLUDE_FROM_ALL ${sources})
set_target_properties(velora_lua_cxx PROPERTIES PREFIX "" OUTPUT_NAME ${VELORA_LUA_DLL}-c++ LINKER_LANGUAGE CXX
                                                WINDOWS_EXPORT_ALL_SYMBOLS ON)
target_compile_options(velora_lua PRIVATE ${VELORA_LUA_OPTIONS})
target_compile_options(velora_lua_cxx PRIVATE ${VELORA_LUA_OPTIONS} "$<IF:$<BOOL:${MSVC}>,/TP;/EHs,-xc++>")
target_link_libraries(velora_lua_cxx INTERFACE velora_lua_headers)
