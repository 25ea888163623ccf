# Builds and runs the stranger's project with the libraries got in the way named by WAY.

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# configure_and_build(<source folder> <build folder> <option>...)
function(configure_and_build source build)
    run(${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR} -DCMAKE_BUILD_TYPE=Release
        -DCMAKE_CXX_COMPILER=${COMPILER} ${ARGN}
    )
    run(${CMAKE_COMMAND} --build ${build} --parallel 2)
endfunction()

# install_built(<prefix> <option>...): builds the project anew, without what is the developers', and installs it.
function(install_built prefix)
    configure_and_build(
        ${SOURCE_DIR} ${WORK_DIR}/build -DOSTRA_PARAMETERS_TESTS=OFF -DOSTRA_PARAMETERS_TOOLS=OFF ${ARGN}
    )
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/build --prefix ${prefix})
endfunction()

# install_moved(<prefix>): installs what the tests run with, and then moves it, because packages must not know where
# they were made.
function(install_moved prefix)
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/first)
    file(RENAME ${WORK_DIR}/first ${prefix})
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(options -DCMAKE_PREFIX_PATH=${prefix})
if(WAY STREQUAL "installed")
    install_moved(${prefix})
elseif(WAY STREQUAL "static")
    install_built(${prefix} -DBUILD_SHARED_LIBS=OFF)
elseif(WAY STREQUAL "subdirectory")
    set(options -DOSTRA_PARAMETERS_SOURCE_DIR=${SOURCE_DIR})
elseif(WAY STREQUAL "installed-units")
    # What is left of the first installation is the units library alone.
    install_moved(${WORK_DIR}/units)
    file(GLOB others ${WORK_DIR}/units/lib*/*OstraParameters* ${WORK_DIR}/units/lib*/cmake/OstraParameters)
    file(REMOVE_RECURSE ${others} ${WORK_DIR}/units/include/parameters ${WORK_DIR}/units/bin)
    install_built(${prefix} -DOSTRA_UNITS=installed -DCMAKE_PREFIX_PATH=${WORK_DIR}/units)
    list(APPEND options -DOstraUnits_ROOT=${WORK_DIR}/units)
else()
    message(FATAL_ERROR "There is no way \"${WAY}\" to get the libraries.")
endif()
configure_and_build(${CMAKE_CURRENT_LIST_DIR}/stranger ${WORK_DIR}/stranger ${options})
run(${WORK_DIR}/stranger/stranger)
