# Fails unless the shared LIBRARY exports what the file LIST says and nothing else; with UPDATE, writes that file. The
# list is of readable names, which are the same for every compiler.
execute_process(
    COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY} OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY
)
string(REGEX REPLACE "(^|\n)[0-9a-f]+ [A-Za-z] " "\\1" listing "${listing}")
string(REPLACE "[" "<" listing "${listing}") # brackets would keep lines of a list together
string(REPLACE "]" ">" listing "${listing}")
string(STRIP "${listing}" listing)
string(REPLACE "\n" ";" symbols "${listing}")
list(SORT symbols)
list(REMOVE_DUPLICATES symbols) # of the several forms of a constructor
if(symbols STREQUAL "")
    message(FATAL_ERROR "${LIBRARY} exports nothing.")
endif()
string(REPLACE ";" "\n" text "${symbols}\n")
if(UPDATE)
    file(WRITE ${LIST} "${text}")
    return()
endif()
file(READ ${LIST} expected)
if(NOT text STREQUAL expected)
    cmake_path(GET LIST FILENAME name)
    file(WRITE ${name} "${text}")
    execute_process(COMMAND diff ${LIST} ${name} OUTPUT_VARIABLE difference)
    message(FATAL_ERROR "${LIBRARY} exports other symbols than its list says. If that is meant, run scripts/abi "
                        "--update.\n${difference}"
    )
endif()
