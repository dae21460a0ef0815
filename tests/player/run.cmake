# Plays one script and compares exit status and output with what is expected. Variables: PLAYER (a list: a program and
# what goes with it), ARGUMENTS, STATUS (a number, or CMake's text for the signal that ends it), and where they matter
# STDOUT and STDERR, files with the expected text, and PATTERN, a regular expression for both streams. WRITTEN is a file
# of JSON that the script writes, which is compared without its times with the file EXPECTED.
separate_arguments(ARGUMENTS UNIX_COMMAND "${ARGUMENTS}")
execute_process(COMMAND ${PLAYER} ${ARGUMENTS} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err
                TIMEOUT 60)
if(NOT status STREQUAL STATUS)
  message(FATAL_ERROR "exit status ${status}, not ${STATUS}\n${out}\n${err}")
endif()

function(compare name actual file)
  file(READ ${file} expected)
  if(NOT actual STREQUAL expected)
    message(FATAL_ERROR "${name} differs from ${file}:\n${actual}")
  endif()
endfunction()
if(STDOUT)
  compare(stdout "${out}" ${STDOUT})
endif()
if(STDERR)
  compare(stderr "${err}" ${STDERR})
endif()
if(WRITTEN)
  file(READ ${WRITTEN} written)
  string(JSON rows LENGTH "${written}")
  string(REGEX REPLACE "\"ts\":[0-9.]+" "\"ts\":0" written "${written}")
  compare(${WRITTEN} "${written}" ${EXPECTED})
endif()
if(NOT "${out}${err}" MATCHES "${PATTERN}")
  message(FATAL_ERROR "this does not match ${PATTERN}:\n${out}${err}")
endif()
