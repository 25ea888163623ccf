# Fails when the shared LIBRARY exports a symbol outside NAMESPACE that is no instantiation of the standard library's,
# something of the namespace's Internal part, or nothing of its own. Symbols are judged as they are mangled, because the
# readable form of a template begins with its return type.
execute_process(
    COMMAND ${NM} --dynamic --defined-only --format=posix ${LIBRARY}
    OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY
)
string(REGEX MATCHALL "[^\n]+" lines "${listing}")

string(LENGTH ${NAMESPACE} length)
set(own "^_Z(T[VIST]|GV|Z)?NK?${length}${NAMESPACE}")
set(standard "^_Z(T[VIST]|GV|Z)?(NK?)?(S[tabsiod]|9__gnu_cxx)")
set(count 0)
set(faults "")
foreach(line IN LISTS lines)
    if(line MATCHES "${own}" AND NOT line MATCHES "${own}8Internal")
        math(EXPR count "${count} + 1")
    elseif(NOT line MATCHES "${standard}")
        string(APPEND faults "  ${line}\n")
    endif()
endforeach()
if(count EQUAL 0)
    message(FATAL_ERROR "${LIBRARY} exports nothing of ${NAMESPACE}.")
endif()
if(NOT faults STREQUAL "")
    message(FATAL_ERROR "${LIBRARY} exports what is not its own:\n${faults}")
endif()
