# Builds and runs the stranger's project, and the program of README.md, with the libraries got in the way named by WAY.

cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# configure_and_build(<source folder> <build folder> <option>...)
function(configure_and_build source build)
    run(${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER}
        -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} ${ARGN}
    )
    run(${CMAKE_COMMAND} --build ${build} --parallel 2)
endfunction()

# run_readme(<program>): it prints what README.md says.
function(run_readme program)
    string(REGEX REPLACE "cpp$" "txt" expected ${README_PROGRAM})
    run(${CMAKE_COMMAND} -DPROGRAM=${program} -DEXPECTED=${expected}
        -P ${SOURCE_DIR}/tests/documentation/check_output.cmake
    )
endfunction()

# build_stranger(<build folder> <option>...): builds the stranger's project and runs its programs.
function(build_stranger build)
    configure_and_build(${CMAKE_CURRENT_LIST_DIR}/stranger ${build} -DREADME_PROGRAM=${README_PROGRAM} ${ARGN})
    run(${build}/stranger)
    run_readme(${build}/readme)
endfunction()

# install_built(<prefix> <option>...): builds the project anew, without what is the developers', and installs it.
function(install_built prefix)
    configure_and_build(
        ${SOURCE_DIR} ${WORK_DIR}/build -DOSTRA_PARAMETERS_TESTS=OFF -DOSTRA_PARAMETERS_TOOLS=OFF
        -DOSTRA_PARAMETERS_EXAMPLES=OFF ${ARGN}
    )
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/build --prefix ${prefix})
endfunction()

# install_moved(<build folder> <prefix>): installs what was built, and then moves it, because packages must not know
# where they were made.
function(install_moved build prefix)
    run(${CMAKE_COMMAND} --install ${build} --prefix ${WORK_DIR}/first)
    file(RENAME ${WORK_DIR}/first ${prefix})
    file(GLOB_RECURSE files ${prefix}/include/* ${prefix}/*.cmake ${prefix}/*.pc)
    foreach(file IN LISTS files)
        file(STRINGS ${file} lines REGEX "[Rr]apid[Jj][Ss][Oo][Nn]|RAPIDJSON|${WORK_DIR}|${SOURCE_DIR}")
        if(lines)
            message(FATAL_ERROR "${file} names the parser, or where it was made: ${lines}")
        endif()
    endforeach()
endfunction()

# library_folder(<variable> <prefix>): where a tree has its libraries.
function(library_folder variable prefix)
    file(GLOB_RECURSE configs ${prefix}/OstraParametersConfig.cmake)
    list(GET configs 0 config)
    cmake_path(GET config PARENT_PATH folder)
    cmake_path(SET folder NORMALIZE ${folder}/../..)
    set(${variable} ${folder} PARENT_SCOPE)
endfunction()

# compile_by_pkg_config(<prefix> <option of pkg-config>...): without CMake.
function(compile_by_pkg_config prefix)
    library_folder(libraries ${prefix})
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_LIBDIR=${libraries}/pkgconfig
                pkg-config ${ARGN} --cflags --libs "ostra-parameters >= 1.0"
        OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
    )
    separate_arguments(flags UNIX_COMMAND "${flags}")
    foreach(source IN ITEMS ${CMAKE_CURRENT_LIST_DIR}/stranger/main.cpp ${README_PROGRAM})
        cmake_path(GET source STEM program)
        set(program ${WORK_DIR}/pkg-config-${program})
        run(${COMPILER} -std=c++17 -Wall -Wextra -Wpedantic -Wconversion -Werror ${source} -o ${program} ${flags})
        set(ENV{LD_LIBRARY_PATH} ${libraries})
        if(source STREQUAL README_PROGRAM)
            run_readme(${program})
        else()
            run(${program})
        endif()
        unset(ENV{LD_LIBRARY_PATH})
    endforeach()
endfunction()

# link_whole(<prefix>): nothing is defined twice in the static libraries, in whatever order they are put together, and
# nothing is defined that is not ours.
function(link_whole prefix)
    library_folder(libraries ${prefix})
    set(parameters ${libraries}libOstraParameters.a)
    set(units ${libraries}libOstraUnits.a)
    set(flags -std=c++17 -DPARAMETERS_STATIC_DEFINE -DUNITS_STATIC_DEFINE -I${prefix}/include)
    foreach(order IN ITEMS "${parameters};${units}" "${units};${parameters}")
        run(${COMPILER} ${flags} ${README_PROGRAM} -o ${WORK_DIR}/whole -Wl,--whole-archive ${order}
            -Wl,--no-whole-archive
        )
        run_readme(${WORK_DIR}/whole)
    endforeach()
    execute_process(
        COMMAND ${NM} --defined-only --format=posix ${parameters} ${units} OUTPUT_VARIABLE symbols
        COMMAND_ERROR_IS_FATAL ANY
    )
    if(symbols MATCHES "9rapidjson" OR NOT symbols MATCHES "14OstraRapidJSON")
        message(FATAL_ERROR "The static libraries hold the parser under its own name.")
    endif()
endfunction()

# check_exports(<prefix>): the lists of symbols hold for every compiler.
function(check_exports prefix)
    library_folder(libraries ${prefix})
    foreach(name IN ITEMS OstraParameters OstraUnits)
        run(${CMAKE_COMMAND} -DNM=${NM} -DLIBRARY=${libraries}lib${name}.so -DLIST=${SOURCE_DIR}/abi/${name}.symbols
            -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/check_exports.cmake
        )
    endforeach()
endfunction()

# unpack(<folder> <package>...): the root of a system in which these packages are installed, in a folder.
function(unpack root)
    file(MAKE_DIRECTORY ${root})
    foreach(package IN LISTS ARGN)
        run(dpkg-deb -x ${package} ${root})
    endforeach()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(found -DCMAKE_PREFIX_PATH=${prefix} -DCATALOGUE=${SOURCE_DIR}/examples/catalogue)
if(WAY STREQUAL "installed")
    install_moved(${BUILD_DIR} ${prefix})
    build_stranger(${WORK_DIR}/stranger ${found})
elseif(WAY STREQUAL "every")
    # One build of the libraries is enough: what a subdirectory built is what is fetched, and what is installed.
    set(sources -DOSTRA_PARAMETERS_SOURCE_DIR=${SOURCE_DIR} -DBUILD_SHARED_LIBS=${SHARED})
    build_stranger(${WORK_DIR}/sources ${sources})
    build_stranger(${WORK_DIR}/sources ${sources} -DFETCH=ON)
    install_moved(${WORK_DIR}/sources ${prefix})
    build_stranger(${WORK_DIR}/stranger ${found})
    compile_by_pkg_config(${prefix} --static)
    if(SHARED)
        compile_by_pkg_config(${prefix})
        check_exports(${prefix})
    else()
        link_whole(${prefix})
    endif()
elseif(WAY STREQUAL "packages")
    file(GLOB packages ${PACKAGES}/*.deb)
    unpack(${prefix} ${packages})
    # What would be in the system is found in the scratch root.
    library_folder(libraries ${prefix})
    set(ENV{LD_LIBRARY_PATH} ${libraries})
    build_stranger(${WORK_DIR}/stranger -DCMAKE_PREFIX_PATH=${prefix}/usr
                   -DCATALOGUE=${SOURCE_DIR}/examples/catalogue
    )
    run(${CMAKE_CTEST_COMMAND} --test-dir ${WORK_DIR}/stranger --no-tests=error --output-on-failure)
    compile_by_pkg_config(${prefix})
elseif(WAY STREQUAL "installed-units")
    # What is left of the first installation is the units library alone.
    install_moved(${BUILD_DIR} ${WORK_DIR}/units)
    file(GLOB others ${WORK_DIR}/units/lib*/*OstraParameters* ${WORK_DIR}/units/lib*/cmake/OstraParameters)
    file(REMOVE_RECURSE ${others} ${WORK_DIR}/units/include/parameters ${WORK_DIR}/units/bin)
    install_built(${prefix} -DOSTRA_UNITS=installed -DCMAKE_PREFIX_PATH=${WORK_DIR}/units)
    # A library remembers where others were found, but not below its own project, where they are here.
    set(ENV{LD_LIBRARY_PATH} ${WORK_DIR}/units/lib)
    build_stranger(${WORK_DIR}/stranger ${found} -DOstraUnits_ROOT=${WORK_DIR}/units)
elseif(WAY STREQUAL "foreign-units")
    # Not optimised: it is the compiling that matters.
    set(units ${WORK_DIR}/units)
    configure_and_build(${CMAKE_CURRENT_LIST_DIR}/foreign_units ${WORK_DIR}/build-units -DCMAKE_BUILD_TYPE=Debug)
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/build-units --prefix ${units})
    install_built(${prefix} -DOSTRA_UNITS=installed -DOstraUnits_ROOT=${units} -DCMAKE_BUILD_TYPE=Debug)
    set(ENV{LD_LIBRARY_PATH} ${units}/lib)
    build_stranger(${WORK_DIR}/stranger ${found} -DOstraUnits_ROOT=${units} -DUNITS_ARE_FOREIGN=ON)
    run(${WORK_DIR}/stranger/on_foreign_units)
elseif(WAY STREQUAL "vcpkg")
    set(PORT ostra-parameters)
    file(READ ${SOURCE_DIR}/ports/${PORT}/vcpkg.json port)
    string(JSON port_version GET "${port}" version)
    if(NOT port_version STREQUAL VERSION)
        message(FATAL_ERROR "The port for vcpkg is of version ${port_version}, not ${VERSION}.")
    endif()
    set(FEATURES core tool)
    set(CURRENT_PACKAGES_DIR ${prefix})
    include(${CMAKE_CURRENT_LIST_DIR}/recipes/vcpkg.cmake)
    include(${SOURCE_DIR}/ports/${PORT}/portfile.cmake)
    build_stranger(${WORK_DIR}/stranger ${found})
    run(${prefix}/tools/${PORT}/ostra-params check ${SOURCE_DIR}/examples/catalogue)
elseif(WAY STREQUAL "conan")
    execute_process(
        COMMAND python3 ${CMAKE_CURRENT_LIST_DIR}/recipes/conan.py ${SOURCE_DIR}/conanfile.py ${WORK_DIR}/build ${prefix}
                -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
        OUTPUT_VARIABLE told COMMAND_ERROR_IS_FATAL ANY
    )
    if(NOT told STREQUAL "ostra-parameters ${VERSION}
parameters OstraParameters units ostra-parameters
units OstraUnits ostra-units
")
        message(FATAL_ERROR "The package says of itself: ${told}")
    endif()
    build_stranger(${WORK_DIR}/stranger ${found})
else()
    message(FATAL_ERROR "There is no way \"${WAY}\" to get the libraries.")
endif()
