# What the targets of this project have in common. Nothing here reaches a consumer but what ostra_add_library says.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
include(GenerateExportHeader)

# ostra_find_sources(<variable> <folder>): the sources of a folder. They are found, not listed, so that a new kind is
# its files and nothing else: every source in a folder is built, and no list can forget one.
function(ostra_find_sources variable folder)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
    set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# ostra_configure(<target>): language, visibility and warnings of our own sources.
function(ostra_configure target)
    target_compile_features(${target} PRIVATE cxx_std_20)
    target_compile_options(
        ${target}
        PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall -Wextra -Wpedantic -Wconversion -Wshadow>
    )
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

# ostra_add_library(<target> HEADERS <folder> SOURCES <source>... LINKS <library>...): a library with its package.
# All names come from the target's: OstraUnits has the headers <units/...>, the macro UNITS_EXPORT, the alias
# Ostra::Units and the package OstraUnits. Its own objects are OstraUnitsObjects, in which tests reach what the library
# hides; those of OstraSchema are built once and put into each library.
function(ostra_add_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADERS" "SOURCES;LINKS")
    string(REGEX REPLACE "^Ostra" "" name ${target})
    string(TOUPPER ${name} macro)
    string(TOLOWER ${name} folder)
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

    add_library(${target} $<TARGET_OBJECTS:${target}Objects> $<TARGET_OBJECTS:OstraSchema>)
    add_library(Ostra::${name} ALIAS ${target})
    generate_export_header(${target} BASE_NAME ${macro} EXPORT_FILE_NAME ${export_header})
    target_sources(
        ${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${arg_HEADERS} ${generated}
                         FILES ${headers} ${export_header} ${version_header}
    )
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PUBLIC ${arg_LINKS})
    set_target_properties(
        ${target}
        PROPERTIES EXPORT_NAME ${name}
                   VERSION ${PROJECT_VERSION}
                   SOVERSION ${PROJECT_VERSION_MAJOR}
                   VERIFY_INTERFACE_HEADER_SETS ON
                   INSTALL_RPATH $ORIGIN # the libraries lie side by side
                   INSTALL_RPATH_USE_LINK_PATH ON # or where the units library was found
    )
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(${target} PUBLIC ${macro}_STATIC_DEFINE)
        target_compile_definitions(${target}Objects PUBLIC ${macro}_STATIC_DEFINE)
    endif()
    ostra_install_package(${target} DEPENDENCIES ${arg_LINKS})
endfunction()

# ostra_install_package(<target> DEPENDENCIES <library>...): the library, its headers, and the CMake package of its
# name, which finds the packages of the dependencies (Ostra::Units is in OstraUnits).
function(ostra_install_package target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "DEPENDENCIES")
    set(dependencies "")
    foreach(dependency IN LISTS arg_DEPENDENCIES)
        string(REPLACE "::" "" package ${dependency})
        string(APPEND dependencies
               "find_dependency(${package} CONFIG HINTS \"\${CMAKE_CURRENT_LIST_DIR}/../${package}\")\n"
        )
    endforeach()
    set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/${target})
    configure_package_config_file(
        ${PROJECT_SOURCE_DIR}/cmake/Config.cmake.in ${target}Config.cmake INSTALL_DESTINATION ${package_folder}
    )
    write_basic_package_version_file(${target}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(
        TARGETS ${target}
        EXPORT ${target}Targets
        FILE_SET HEADERS
        INCLUDES # for consumers whose CMake does not know file sets
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    )
    install(EXPORT ${target}Targets NAMESPACE Ostra:: DESTINATION ${package_folder})
    install(
        FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}Config.cmake ${CMAKE_CURRENT_BINARY_DIR}/${target}ConfigVersion.cmake
        DESTINATION ${package_folder}
    )
endfunction()
