# What the targets of this project have in common. Nothing here reaches a consumer but what ostra_add_library says.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
include(GenerateExportHeader)

# Libraries and programs find the libraries relative to where they lie themselves. Windows looks beside the program.
if(APPLE)
    set(ostra_origin @loader_path)
elseif(UNIX)
    set(ostra_origin $ORIGIN)
endif()

# Visual Studio warns that classes of the standard library are no part of a DLL (4251, 4275): whoever uses a C++ library
# has the standard library that it was built with. In others' projects our headers are those of a system, see below.
set(ostra_options "")
set(ostra_header_warnings "")
if(MSVC)
    set(ostra_options /W4 /permissive- /utf-8 /EHsc /Zc:__cplusplus /wd4251 /wd4275)
    set(ostra_header_warnings /W4 /wd4251 /wd4275 /WX)
elseif(CMAKE_CXX_COMPILER_ID MATCHES "^(GNU|Clang|AppleClang)$")
    set(ostra_header_warnings -Wall -Wextra -Wpedantic -Wconversion)
    set(ostra_options ${ostra_header_warnings} -Wshadow)
    list(APPEND ostra_header_warnings -Werror)
endif()

# ostra_find_sources(<variable> <folder>): the sources of a folder. They are found, not listed, so that a new kind is
# its files and nothing else: every source in a folder is built, and no list can forget one.
function(ostra_find_sources variable folder)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
    set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# ostra_configure(<target>): language, visibility and warnings of our own sources.
function(ostra_configure target)
    target_compile_features(${target} PRIVATE cxx_std_20)
    target_compile_options(${target} PRIVATE ${ostra_options})
    get_target_property(type ${target} TYPE)
    if(OSTRA_PARAMETERS_FUZZERS AND type STREQUAL "OBJECT_LIBRARY") # the libraries' own code
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link) # tells fuzzers what an input reaches
    endif()
    set_target_properties(
        ${target}
        PROPERTIES CXX_EXTENSIONS OFF
                   CXX_VISIBILITY_PRESET hidden
                   VISIBILITY_INLINES_HIDDEN ON
                   POSITION_INDEPENDENT_CODE ON # objects go into shared libraries whatever else is built
                   COMPILE_WARNING_AS_ERROR ${OSTRA_PARAMETERS_WERROR}
    )
endfunction()

# ostra_add_library(<target> DESCRIPTION <sentence> HEADERS <folder> SOURCES <source>... LINKS <library>...): a library
# with its package.
# All names come from the target's: OstraUnits has the headers <units/...>, the macro UNITS_EXPORT, the alias
# Ostra::Units and the package OstraUnits. Its own objects are OstraUnitsObjects, in which tests reach what the library
# hides; those of OstraSchema are built once and put into each library.
function(ostra_add_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION;HEADERS" "SOURCES;LINKS")
    string(REGEX REPLACE "^Ostra" "" name ${target})
    string(TOUPPER ${name} macro)
    string(TOLOWER ${name} folder)
    set(description "${arg_DESCRIPTION}")
    set(generated ${CMAKE_CURRENT_BINARY_DIR}/include)
    set(export_header ${generated}/${folder}/Export.h)
    set(version_header ${generated}/${folder}/Version.h)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/Version.h.in ${version_header} @ONLY)
    file(GLOB headers CONFIGURE_DEPENDS ${arg_HEADERS}/${folder}/*.h)

    add_library(${target}Objects OBJECT ${arg_SOURCES})
    ostra_configure(${target}Objects)
    target_include_directories(${target}Objects PUBLIC ${arg_HEADERS} ${generated})
    target_link_libraries(${target}Objects PUBLIC OstraSchema ${arg_LINKS})
    target_compile_definitions(${target}Objects PRIVATE ${target}_EXPORTS)

    add_library(${target} $<TARGET_OBJECTS:${target}Objects>)
    # Static libraries are linked together, so that the documents are in the first of them alone, which others need.
    if(BUILD_SHARED_LIBS OR NOT arg_LINKS OR OSTRA_UNITS STREQUAL "installed")
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:OstraSchema>)
    endif()
    add_library(Ostra::${name} ALIAS ${target})
    generate_export_header(${target} BASE_NAME ${macro} EXPORT_FILE_NAME ${export_header})
    target_sources(
        ${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${arg_HEADERS} ${generated}
                         FILES ${headers} ${export_header} ${version_header}
    )
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PUBLIC ${arg_LINKS})
    # The target that compiles each public header alone does so with warnings.
    set(is_verification $<STREQUAL:$<TARGET_PROPERTY:NAME>,${target}_verify_interface_header_sets>)
    target_compile_options(${target} INTERFACE "$<BUILD_INTERFACE:$<${is_verification}:${ostra_header_warnings}>>")
    set_target_properties(
        ${target}
        PROPERTIES EXPORT_NAME ${name}
                   VERSION ${PROJECT_VERSION}
                   SOVERSION ${PROJECT_VERSION_MAJOR}
                   VERIFY_INTERFACE_HEADER_SETS ON
                   INSTALL_RPATH "${ostra_origin}" # the libraries lie side by side
                   INSTALL_RPATH_USE_LINK_PATH ON # or where the units library was found
    )
    if(NOT PROJECT_IS_TOP_LEVEL)
        set_target_properties(${target} PROPERTIES SYSTEM ON) # as it would be if it were installed
    endif()
    ostra_export_namespace(${target} ${name})
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(${target} PUBLIC ${macro}_STATIC_DEFINE)
        target_compile_definitions(${target}Objects PUBLIC ${macro}_STATIC_DEFINE)
    endif()
    ostra_install_package(${target} DEPENDENCIES ${arg_LINKS})
endfunction()

# ostra_export_namespace(<target> <namespace>): a shared library exports what is of its namespace and not hidden.
# Hidden visibility does not reach what it instantiates of the standard library's templates; the linker does.
function(ostra_export_namespace target namespace)
    if(NOT BUILD_SHARED_LIBS OR NOT UNIX OR APPLE)
        return()
    endif()
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    string(LENGTH ${namespace} length)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/exports.map.in ${script} @ONLY)
    target_link_options(${target} PRIVATE LINKER:--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()

# ostra_install_pkg_config(<target> DEPENDENCIES <library>...): what pkg-config says of the library. It finds itself
# from where it lies, so that the tree can be moved.
function(ostra_install_pkg_config target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDENCIES")
    list(TRANSFORM arg_DEPENDENCIES REPLACE "^Ostra::" "ostra-")
    string(JOIN ", " requires ${arg_DEPENDENCIES})
    string(REGEX REPLACE "^Ostra" "" name ${target})
    string(TOLOWER "${requires}" requires)
    string(TOLOWER ostra-${name} file)
    set(definition "")
    if(NOT BUILD_SHARED_LIBS)
        string(TOUPPER ${name} macro)
        set(definition " -D${macro}_STATIC_DEFINE")
    endif()
    file(RELATIVE_PATH up ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${file}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${file}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
            COMPONENT ${target}-dev
    )
endfunction()

# ostra_install_debuggers(<target>): gdb loads a script of a library's name by itself, when it lies below the folder in
# which gdb looks under the full name of the library.
function(ostra_install_debuggers target)
    if(BUILD_SHARED_LIBS AND UNIX AND NOT APPLE)
        install(
            FILES ${PROJECT_SOURCE_DIR}/debuggers/ostra_gdb.py
            DESTINATION ${CMAKE_INSTALL_DATADIR}/gdb/auto-load${CMAKE_INSTALL_FULL_LIBDIR}
            RENAME $<TARGET_FILE_NAME:${target}>-gdb.py
            COMPONENT ${target}-dev
        )
    endif()
endfunction()

# ostra_install_package(<target> DEPENDENCIES <library>...): the library, its headers, and the CMake package of its
# name, which finds the packages of the dependencies (Ostra::Units is in OstraUnits). What runs is in the component of
# the target's name, what is compiled with in the component <target>-dev.
function(ostra_install_package target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDENCIES")
    set(dependencies "")
    set(components "")
    foreach(library IN LISTS arg_DEPENDENCIES ITEMS ${target})
        string(REGEX REPLACE "^Ostra(::)?" "" component ${library})
        string(APPEND components "set(${target}_${component}_FOUND TRUE)\n")
    endforeach()
    foreach(dependency IN LISTS arg_DEPENDENCIES)
        string(REPLACE "::" "" package ${dependency})
        string(APPEND dependencies
               "find_dependency(${package} CONFIG HINTS \"\${CMAKE_CURRENT_LIST_DIR}/../${package}\")\n"
        )
    endforeach()
    ostra_install_pkg_config(${target} DEPENDENCIES ${arg_DEPENDENCIES})
    ostra_install_debuggers(${target})
    set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/${target})
    configure_package_config_file(
        ${PROJECT_SOURCE_DIR}/cmake/Config.cmake.in ${target}Config.cmake INSTALL_DESTINATION ${package_folder}
    )
    write_basic_package_version_file(${target}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(
        TARGETS ${target}
        EXPORT ${target}Targets
        LIBRARY COMPONENT ${target} NAMELINK_COMPONENT ${target}-dev
        RUNTIME COMPONENT ${target}
        ARCHIVE COMPONENT ${target}-dev
        FILE_SET HEADERS COMPONENT ${target}-dev
        INCLUDES # for consumers whose CMake does not know file sets
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    )
    install(EXPORT ${target}Targets NAMESPACE Ostra:: DESTINATION ${package_folder} COMPONENT ${target}-dev)
    install(
        FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}Config.cmake ${CMAKE_CURRENT_BINARY_DIR}/${target}ConfigVersion.cmake
        DESTINATION ${package_folder} COMPONENT ${target}-dev
    )
endfunction()
