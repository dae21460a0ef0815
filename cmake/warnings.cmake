# The warnings that the project builds without.
add_library(velora_warnings INTERFACE)
if(MSVC)
  # /EHs and not /EHsc: Lua's functions are declared as C and may throw.
  target_compile_options(velora_warnings INTERFACE /W4 /utf-8 /permissive-)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    target_compile_options(velora_warnings INTERFACE -Wpedantic -Wconversion -Wshadow /WX)  # cl.exe's are not known yet
    set(VELORA_LUA_OPTIONS -Wno-string-plus-int)  # Lua's sources use `LUA_SIGNATURE + 1`
  endif()
  string(REPLACE "/EHsc" "/EHs" CMAKE_CXX_FLAGS "${CMAKE_CXX_FLAGS}")
else()
  target_compile_options(velora_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(velora_warnings INTERFACE -Wno-restrict)  # false alarms about std::string concatenation
  endif()
endif()
