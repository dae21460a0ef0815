# What `cmake --install` lays out and CPack packs, the same on every system:
#   bin/                  velora-play; on Windows every DLL too
#   lib/                  the libraries to load (Linux) or to link with (Windows), and the CMake package
#   include/LuaVelora/    module/lua_velora.h, platform/
#   include/lua5.3/       Lua's headers, on Windows
#   share/LuaVelora/      README.md, docs/, examples/, types/, site/; on Windows licences/
include(CMakePackageConfigHelpers)
set(package lib/cmake/LuaVelora)

target_include_directories(LuaVelora INTERFACE $<INSTALL_INTERFACE:include/LuaVelora>)
target_include_directories(velora_sdk INTERFACE $<INSTALL_INTERFACE:include/LuaVelora>)
set(libraries LuaVelora velora_sdk)
if(WIN32)
  target_include_directories(velora_lua INTERFACE $<INSTALL_INTERFACE:include/lua5.3>)
  set_target_properties(velora_lua PROPERTIES EXPORT_NAME Lua)
  list(APPEND libraries velora_lua)
else()
  set_target_properties(LuaVelora velora_sdk PROPERTIES INSTALL_RPATH "$ORIGIN")
  set_target_properties(velora-play PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
endif()

install(TARGETS ${libraries} EXPORT LuaVelora RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(TARGETS velora-play RUNTIME DESTINATION bin)
install(EXPORT LuaVelora NAMESPACE LuaVelora:: FILE LuaVeloraTargets.cmake DESTINATION ${package})
configure_package_config_file(cmake/LuaVeloraConfig.cmake.in LuaVeloraConfig.cmake INSTALL_DESTINATION ${package})
write_basic_package_version_file(LuaVeloraConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/LuaVeloraConfig.cmake ${PROJECT_BINARY_DIR}/LuaVeloraConfigVersion.cmake
        DESTINATION ${package})

install(FILES module/lua_velora.h DESTINATION include/LuaVelora/module)
install(DIRECTORY platform DESTINATION include/LuaVelora)
install(DIRECTORY docs examples types DESTINATION share/LuaVelora)
install(FILES README.md DESTINATION share/LuaVelora)
# The documents as web pages, if `make site` has written them.
install(DIRECTORY build/site DESTINATION share/LuaVelora OPTIONAL)
if(WIN32)
  install(FILES ${VELORA_LUA_HEADERS} DESTINATION include/lua5.3)
endif()
if(MINGW)
  install(FILES ${VELORA_MINGW_RUNTIME} DESTINATION bin)
  # The terms of the libraries of others among the DLLs, where the system has them.
  foreach(origin gcc-mingw-w64-base mingw-w64-common liblua5.3-dev)
    install(FILES /usr/share/doc/${origin}/copyright DESTINATION share/LuaVelora/licences RENAME ${origin}.txt OPTIONAL)
  endforeach()
endif()

string(TOLOWER ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR} system)
set(CPACK_PACKAGE_FILE_NAME LuaVelora-${PROJECT_VERSION}-${system})
if(WIN32)
  set(CPACK_GENERATOR ZIP)
else()
  set(CPACK_GENERATOR TGZ)
endif()
include(CPack)
