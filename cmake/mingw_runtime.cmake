# How MinGW-w64 links here: the standard library is shared, since module and SDK pass its objects to each other and
# throw across; its DLLs go beside the programs. An engine has its own way to put them there.
if(PROJECT_IS_TOP_LEVEL)
  file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE file
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    file(COPY ${file} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    list(APPEND VELORA_MINGW_RUNTIME ${file})
  endforeach()
endif()

# The same sources give the same files.
add_link_options(-Wl,--no-insert-timestamp)

# Fails the build where the target's objects use the SDK's data without __declspec(dllimport), which else shows at run
# time only, far from its cause. Linked aside with the standard library inside, since the type information of that
# library, used from its DLL, counts as such data too.
function(check_data_imports target)
  add_library(${target}_data_imports SHARED $<TARGET_OBJECTS:${target}>)
  target_link_libraries(${target}_data_imports PRIVATE ${ARGN})
  target_link_options(${target}_data_imports PRIVATE -static-libgcc -static-libstdc++ -Wl,--disable-auto-import)
  set_target_properties(${target}_data_imports PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/check)
endfunction()
