# Toolchain: 64-bit Windows with MinGW-w64, in its posix variant, since the win32 variant lacks std::thread.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(VELORA_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${VELORA_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${VELORA_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${VELORA_MINGW}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${VELORA_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Runs the tests, and lists them for the test runner.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine_run)
