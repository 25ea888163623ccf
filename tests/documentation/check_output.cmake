# Runs PROGRAM with ARGUMENTS and fails unless its whole output is the content of the file EXPECTED and its exit code is
# STATUS (0 when none is given). Programs of another platform run in its EMULATOR.
separate_arguments(EMULATOR)
execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${ARGUMENTS} OUTPUT_VARIABLE output RESULT_VARIABLE result)
file(READ ${EXPECTED} expected)
if(LINES_END_IN_CRLF) # as programs write them to the standard output of a Windows
    string(REPLACE "\r\n" "\n" output "${output}")
endif()
if(NOT "${output}" STREQUAL "${expected}")
    message(FATAL_ERROR "Expected:\n${expected}\nbut the program printed:\n${output}")
endif()
if(NOT DEFINED STATUS)
    set(STATUS 0)
endif()
if(NOT result EQUAL STATUS)
    message(FATAL_ERROR "Expected the exit code ${STATUS}, but it was ${result}.")
endif()
