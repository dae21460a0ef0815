# The files of `cmake --install` and of the package, on every system:
#   bin/                  velora-play; on Windows every DLL too
#   lib/                  the shared libraries (Linux) or the import libraries (Windows), the CMake package and the
#                         pkg-config file
#   include/LuaVelora/    module/lua_velora.h, platform/
#   include/lua5.3/       Lua's headers, on Windows
#   share/LuaVelora/      README.md, CHANGELOG.md, docs/, examples/, types/, site/; on Windows licences/
# `--component module` leaves out the offline runtime, platform/, the player and share/.
# The component symbols has an archive of its own with FILE.debug or FILE.pdb for each program and library.
include(CMakePackageConfigHelpers)
set(package lib/cmake/LuaVelora)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME module)
set(libraries LuaVelora)
target_include_directories(LuaVelora INTERFACE $<INSTALL_INTERFACE:include/LuaVelora>)
install(FILES module/lua_velora.h DESTINATION include/LuaVelora/module)
if(WIN32)
  target_include_directories(velora_lua INTERFACE $<INSTALL_INTERFACE:include/lua5.3>)
  set_target_properties(velora_lua PROPERTIES EXPORT_NAME Lua)
  list(APPEND libraries velora_lua)
  install(FILES ${VELORA_LUA_HEADERS} DESTINATION include/lua5.3)
else()
  set_target_properties(LuaVelora velora_sdk PROPERTIES INSTALL_RPATH "$ORIGIN")
  set_target_properties(velora-play PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
endif()
if(MINGW)
  install(FILES ${VELORA_MINGW_RUNTIME} DESTINATION bin)
endif()
install(TARGETS ${libraries} EXPORT LuaVelora RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(EXPORT LuaVelora NAMESPACE LuaVelora:: FILE LuaVeloraTargets.cmake DESTINATION ${package})
set(platform_targets ${VELORA_PLATFORM_LIBRARIES})
list(TRANSFORM platform_targets REPLACE "^velora_sdk$" LuaVelora::velora_sdk)
list(FILTER platform_targets INCLUDE REGEX ::)
# In the build folder these are in the same places, so that find_package can be pointed at it too.
configure_package_config_file(cmake/LuaVeloraConfig.cmake.in ${package}/LuaVeloraConfig.cmake
                              INSTALL_DESTINATION ${package})
write_basic_package_version_file(${package}/LuaVeloraConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${package}/LuaVeloraConfig.cmake
              ${PROJECT_BINARY_DIR}/${package}/LuaVeloraConfigVersion.cmake DESTINATION ${package})
file(GENERATE OUTPUT lib/pkgconfig/LuaVelora.pc CONTENT "prefix=\${pcfiledir}/../..
Name: LuaVelora
Description: ${PROJECT_DESCRIPTION}
Version: ${PROJECT_VERSION}
Cflags: -I\${prefix}/include/LuaVelora
Libs: \${prefix}/lib/$<TARGET_LINKER_FILE_NAME:LuaVelora>
")
install(FILES ${PROJECT_BINARY_DIR}/lib/pkgconfig/LuaVelora.pc DESTINATION lib/pkgconfig)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME offline)
target_include_directories(velora_sdk INTERFACE $<INSTALL_INTERFACE:include/LuaVelora>)
install(DIRECTORY platform DESTINATION include/LuaVelora)
install(TARGETS velora_sdk EXPORT LuaVeloraOffline
        RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(TARGETS velora-play RUNTIME DESTINATION bin)
install(EXPORT LuaVeloraOffline NAMESPACE LuaVelora:: FILE LuaVeloraOfflineTargets.cmake DESTINATION ${package})
install(DIRECTORY docs examples types DESTINATION share/LuaVelora)
install(FILES README.md CHANGELOG.md DESTINATION share/LuaVelora)
# The documents as web pages, if `make site` has written them.
install(DIRECTORY build/site DESTINATION share/LuaVelora OPTIONAL)

foreach(target ${libraries} velora_sdk velora-play velora_module velora_binding_helpers)
  add_symbols(${target})
endforeach()
foreach(target ${libraries} velora_sdk)
  split_symbols(${target} $<IF:$<BOOL:${WIN32}>,bin,lib>)
endforeach()
split_symbols(velora-play bin)
if(MINGW)
  install(FILES ${VELORA_MINGW_RUNTIME_SYMBOLS} DESTINATION bin COMPONENT symbols EXCLUDE_FROM_ALL)
  # The licences of third-party DLLs, if they are installed.
  foreach(origin gcc-mingw-w64-base mingw-w64-common liblua5.3-dev)
    install(FILES /usr/share/doc/${origin}/copyright DESTINATION share/LuaVelora/licences RENAME ${origin}.txt OPTIONAL)
  endforeach()
endif()

foreach(set LuaVelora LuaVeloraOffline)
  export(EXPORT ${set} NAMESPACE LuaVelora:: FILE ${PROJECT_BINARY_DIR}/${package}/${set}Targets.cmake)
endforeach()

string(TOLOWER ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR} system)
set(CPACK_PACKAGE_FILE_NAME LuaVelora-${PROJECT_VERSION}-${system})
if(WIN32)
  set(CPACK_GENERATOR ZIP)
else()
  set(CPACK_GENERATOR TGZ)
endif()
# The archive of the symbols: what CPackConfig.cmake says, of the component symbols only.
file(WRITE ${CMAKE_BINARY_DIR}/CPackSymbolsConfig.cmake "include(${CMAKE_BINARY_DIR}/CPackConfig.cmake)
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_FILE_NAME}-symbols)
set(CPACK_INSTALL_CMAKE_PROJECTS \"${CMAKE_BINARY_DIR};${PROJECT_NAME};symbols;/\")
")
include(CPack)
