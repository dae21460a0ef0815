# Toolchain: Clang for 64-bit Windows with Visual C++'s ABI and Microsoft's standard library. VELORA_SYSROOT is the
# folder created by make_sysroot.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VELORA_SYSROOT)
set(CMAKE_TRY_COMPILE_CONFIGURATION Release)  # there is no debug runtime

set(CMAKE_C_COMPILER ${VELORA_SYSROOT}/bin/clang-cl)
set(CMAKE_CXX_COMPILER ${VELORA_SYSROOT}/bin/clang-cl)
set(CMAKE_LINKER /usr/bin/lld-link-19)
set(CMAKE_AR /usr/bin/llvm-lib-19)
set(CMAKE_MT /usr/bin/llvm-mt-19)
set(CMAKE_NM /usr/bin/llvm-nm-19)
set(CMAKE_RC_COMPILER /usr/bin/llvm-rc-19)

file(STRINGS ${VELORA_SYSROOT}/flags flags)
list(TRANSFORM flags REPLACE "(.+)" "\"\\1\"")
list(JOIN flags " " flags)
set(CMAKE_C_FLAGS_INIT "${flags}")
set(CMAKE_CXX_FLAGS_INIT "${flags}")
set(CMAKE_RC_FLAGS_INIT "/I /usr/include/wine/wine/windows")
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "\"/libpath:${VELORA_SYSROOT}/lib\" /manifest:no")
endforeach()
set(CMAKE_C_STANDARD_LIBRARIES kernel32.lib CACHE STRING "")
set(CMAKE_CXX_STANDARD_LIBRARIES kernel32.lib CACHE STRING "")

# Dependencies on system headers are not recorded. The key rebuilds everything if the sysroot changes.
file(READ ${VELORA_SYSROOT}/key key)
add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:/DVELORA_SYSROOT_KEY=${key}>)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../tools/wine_run)
