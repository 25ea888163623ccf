# What cpack makes: Debian packages (a library each, what is compiled with it each, and the tool), or for Windows an
# archive and an installer of all. OSTRA_PARAMETERS_PACKAGES says where they are for.

set(CPACK_PACKAGE_CONTACT "The maintainers of ${PROJECT_NAME} <maintainers@localhost>")
set(CPACK_STRIP_FILES ON)

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    find_program(OSTRA_PARAMETERS_NSIS makensis PATHS "$ENV{ProgramFiles\(x86\)}/NSIS")
    if(OSTRA_PARAMETERS_NSIS)
        list(APPEND CPACK_GENERATOR NSIS)
    endif()
    set(CPACK_MONOLITHIC_INSTALL ON)
    set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
    set(CPACK_PACKAGE_VENDOR "The maintainers of ${PROJECT_NAME}")
    set(CPACK_PACKAGE_INSTALL_DIRECTORY ${PROJECT_NAME})
    set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
    set(CPACK_NSIS_MODIFY_PATH ON) # where programs look for the libraries and people for the tool
    set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/${PROJECT_NAME}
            COMPONENT OstraParameters
    )
    # The compiler's own libraries are no part of the system.
    if(MINGW)
        foreach(library IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
            execute_process(
                COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE file
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
            )
            install(FILES ${file} TYPE BIN COMPONENT OstraUnits)
        endforeach()
    else()
        set(CMAKE_INSTALL_SYSTEM_RUNTIME_COMPONENT OstraUnits)
        include(InstallRequiredSystemLibraries)
    endif()
    include(CPack)
    return()
endif()

set(release 1)
set(version ${PROJECT_VERSION}-${release})
set(soversion ${PROJECT_VERSION_MAJOR})

# ostra_package(<component> <package> <section> <summary> DEPENDS <package>... [BINARY] [RECOMMENDS <package>])
# BINARY: what it needs of other packages is found in its programs and libraries.
function(ostra_package component package section summary)
    cmake_parse_arguments(PARSE_ARGV 4 arg "BINARY" "RECOMMENDS" "DEPENDS")
    string(TOUPPER ${component} upper)
    string(JOIN ", " depends ${arg_DEPENDS})
    set(prefix CPACK_DEBIAN_${upper})
    set(${prefix}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(${prefix}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(${prefix}_DESCRIPTION ${summary} PARENT_SCOPE)
    set(CPACK_COMPONENT_${upper}_DESCRIPTION ${summary} PARENT_SCOPE)
    set(${prefix}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
    set(${prefix}_PACKAGE_RECOMMENDS "${arg_RECOMMENDS}" PARENT_SCOPE)
    set(${prefix}_PACKAGE_SHLIBDEPS ${arg_BINARY} PARENT_SCOPE)
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} RENAME copyright
            COMPONENT ${component}
    )
endfunction()

ostra_package(OstraUnits libostraunits${soversion} libs "registry of units, shared library" BINARY)
ostra_package(
    OstraUnits-dev libostraunits-dev libdevel "registry of units, headers"
    DEPENDS "libostraunits${soversion} (= ${version})"
)
ostra_package(
    OstraParameters libostraparameters${soversion} libs "registry of parameter definitions, shared library" BINARY
    DEPENDS "libostraunits${soversion} (>= ${version})"
)
ostra_package(
    OstraParameters-dev libostraparameters-dev libdevel "registry of parameter definitions, headers"
    DEPENDS "libostraparameters${soversion} (= ${version})" "libostraunits-dev (>= ${version})"
)
ostra_package(
    ostra-params ostra-params utils "tool for authors of parameter catalogues" BINARY
    DEPENDS "libostraparameters${soversion} (>= ${version})" RECOMMENDS graphviz
)

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL OstraUnits OstraUnits-dev OstraParameters OstraParameters-dev ostra-params)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Who links the libraries needs the version that he was linked with, or a later one.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/units)
include(CPack)
