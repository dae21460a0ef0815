# The warnings that the project builds without.
add_library(velora_warnings INTERFACE)
if(MSVC)
  target_compile_options(velora_warnings INTERFACE /W4 /WX /utf-8 /permissive-)
else()
  target_compile_options(velora_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(velora_warnings INTERFACE -Wno-restrict)  # false alarms about std::string concatenation
  endif()
endif()
