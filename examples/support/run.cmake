# Runs a program and holds what it writes, and its exit code, against what is expected:
# cmake -DPROGRAM=… -DEMULATOR=… -DARGUMENTS=… -DEXIT_CODE=… -DEXPECTED=… -DSETTINGS=… [-DIMPORTER=… -DIMPORT=…]
#       -P run.cmake
# SETTINGS is the folder of the settings that it is to find empty, or as IMPORTER makes them from the file IMPORT.
file(REMOVE_RECURSE "${SETTINGS}")
file(MAKE_DIRECTORY "${SETTINGS}")
if(IMPORT)
  execute_process(COMMAND "${IMPORTER}" import "${IMPORT}" RESULT_VARIABLE code)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "The import of ${IMPORT} ended with ${code}")
  endif()
endif()
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" ${ARGUMENTS} OUTPUT_VARIABLE output RESULT_VARIABLE code)
file(READ "${EXPECTED}" expected)
if(NOT output STREQUAL expected)
  message("${output}")
  message(FATAL_ERROR "The output above is not that of ${EXPECTED}")
endif()
if(NOT code EQUAL EXIT_CODE)
  message(FATAL_ERROR "The exit code is ${code} and not ${EXIT_CODE}")
endif()
