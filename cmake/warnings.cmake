# The warnings of the project's code. They are errors, except in an engine's build, whose compiler and flags may cause
# others.
add_library(velora_warnings INTERFACE)
set(as_errors $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:$<IF:$<BOOL:${MSVC}>,/WX,-Werror>>)
if(MSVC)
  # /EHs and not /EHsc: Lua's functions are declared as C and may throw.
  target_compile_options(velora_warnings INTERFACE /W4 /utf-8 /permissive-)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    # Those of cl.exe are not known yet.
    target_compile_options(velora_warnings INTERFACE -Wpedantic -Wconversion -Wshadow ${as_errors})
    set(VELORA_LUA_OPTIONS -Wno-string-plus-int)  # Lua's sources use `LUA_SIGNATURE + 1`
  endif()
  string(REPLACE "/EHsc" "/EHs" CMAKE_CXX_FLAGS "${CMAKE_CXX_FLAGS}")
else()
  target_compile_options(velora_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow ${as_errors})
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(velora_warnings INTERFACE -Wno-restrict)  # false alarms about std::string concatenation
  endif()
endif()
