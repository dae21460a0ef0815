# Link options for MinGW-w64. The standard library is shared, since module and SDK exchange its objects and exceptions.
# Its DLLs are copied to the folder of the programs, unless an engine's build does that. Most of their size is debug
# information, which goes into files of its own.
if(PROJECT_IS_TOP_LEVEL)
  file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE file
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${dll})
    if(NOT EXISTS ${copy}.debug OR ${file} IS_NEWER_THAN ${copy}.debug)
      execute_process(COMMAND ${CMAKE_OBJCOPY} -p --only-keep-debug ${file} ${copy}.debug COMMAND_ERROR_IS_FATAL ANY)
      execute_process(COMMAND ${CMAKE_OBJCOPY} -p --strip-all --add-gnu-debuglink=${copy}.debug ${file} ${copy}
                      COMMAND_ERROR_IS_FATAL ANY)
    endif()
    list(APPEND VELORA_MINGW_RUNTIME ${copy})
    list(APPEND VELORA_MINGW_RUNTIME_SYMBOLS ${copy}.debug)
  endforeach()
endif()

# Makes builds reproducible.
add_link_options(-Wl,--no-insert-timestamp)

# Makes the build fail if the target's objects use the SDK's data without __declspec(dllimport), which would otherwise
# fail only at run time. Links a separate library with the static standard library, since using type information from the
# standard library's DLL would fail, too.
function(check_data_imports target)
  add_library(${target}_data_imports SHARED $<TARGET_OBJECTS:${target}>)
  target_link_libraries(${target}_data_imports PRIVATE ${ARGN})
  target_link_options(${target}_data_imports PRIVATE -static-libgcc -static-libstdc++ -Wl,--disable-auto-import)
  set_target_properties(${target}_data_imports PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/check)
endfunction()
