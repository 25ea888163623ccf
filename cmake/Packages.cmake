# Debian packages: a library each, what is compiled with it each, and the tool.

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
set(CPACK_PACKAGE_CONTACT "The maintainers of ${PROJECT_NAME} <maintainers@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Who links the libraries needs the version that he was linked with, or a later one.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/units)
include(CPack)
