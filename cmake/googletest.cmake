# Builds GoogleTest from Debian's source package, for target systems for which Debian has no library.
find_path(VELORA_GOOGLETEST googletest/CMakeLists.txt PATHS /usr/src PATH_SUFFIXES googletest REQUIRED
          NO_CMAKE_FIND_ROOT_PATH)
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
add_subdirectory(${VELORA_GOOGLETEST} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
if(NOT TARGET GTest::gtest)
  add_library(GTest::gtest ALIAS gtest)
  add_library(GTest::gtest_main ALIAS gtest_main)
endif()
