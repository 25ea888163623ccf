include(${CMAKE_CURRENT_LIST_DIR}/Dependencies.cmake)

# Programs find the compiler's own libraries beside them.
foreach(library IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(
        COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE
    )
    file(COPY ${file} DESTINATION ${CMAKE_BINARY_DIR}/bin)
endforeach()

# What wine keeps of a Windows is made once, before tests run side by side.
if(NOT EXISTS ${CMAKE_BINARY_DIR}/wine/system.reg)
    execute_process(COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} wineboot --init OUTPUT_QUIET ERROR_QUIET)
endif()
