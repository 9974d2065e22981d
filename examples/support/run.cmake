# Runs a program and holds what it writes, and its exit code, against what is expected:
# cmake -DPROGRAM=… -DEMULATOR=… -DARGUMENTS=… -DEXIT_CODE=… -DEXPECTED=… -P run.cmake
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" ${ARGUMENTS} OUTPUT_VARIABLE output RESULT_VARIABLE code)
file(READ "${EXPECTED}" expected)
if(NOT output STREQUAL expected)
  message("${output}")
  message(FATAL_ERROR "The output above is not that of ${EXPECTED}")
endif()
if(NOT code EQUAL EXIT_CODE)
  message(FATAL_ERROR "The exit code is ${code} and not ${EXIT_CODE}")
endif()
