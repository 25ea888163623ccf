# Runs PROGRAM and fails unless its whole output is the content of the file EXPECTED.
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
file(READ ${EXPECTED} expected)
if(NOT "${output}" STREQUAL "${expected}")
    message(FATAL_ERROR "Expected:\n${expected}\nbut the program printed:\n${output}")
endif()
