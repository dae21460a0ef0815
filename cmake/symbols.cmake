# Debug information for what ships, in files of its own: FILE.debug, or FILE.pdb for Visual C++'s ABI.
option(VELORA_SYMBOLS "Put the debug information of what ships into files of its own" OFF)

# Makes a target's objects have debug information.
function(add_symbols target)
  if(VELORA_SYMBOLS AND MSVC)
    set_target_properties(${target} PROPERTIES MSVC_DEBUG_INFORMATION_FORMAT Embedded)
  elseif(VELORA_SYMBOLS)
    # No file names the folder that it was built in.
    set(options -g -ffile-prefix-map=${PROJECT_SOURCE_DIR}=/${PROJECT_NAME}-${PROJECT_VERSION})
    target_compile_options(${target} PRIVATE "$<$<COMPILE_LANGUAGE:C,CXX>:${options}>")
  endif()
endfunction()

# Moves the debug information of a program or library into a file beside it, where debuggers find it, and installs that
# with the component symbols.
function(split_symbols target destination)
  if(NOT VELORA_SYMBOLS)
    return()
  endif()
  set(file $<TARGET_FILE:${target}>)
  if(MSVC)
    # /DEBUG turns /OPT off; the last option keeps the folder out of the file.
    target_link_options(${target} PRIVATE /DEBUG /OPT:REF /OPT:ICF /PDBALTPATH:%_PDB%)
    set(symbols $<TARGET_PDB_FILE:${target}>)
  else()
    set(symbols ${file}.debug)
    # -p keeps the time of the build out of DLLs.
    add_custom_command(TARGET ${target} POST_BUILD
                       COMMAND ${CMAKE_OBJCOPY} -p --only-keep-debug ${file} ${symbols}
                       COMMAND ${CMAKE_OBJCOPY} -p --strip-all --add-gnu-debuglink=${symbols} ${file} VERBATIM)
  endif()
  install(FILES ${symbols} DESTINATION ${destination} COMPONENT symbols EXCLUDE_FROM_ALL)
endfunction()
