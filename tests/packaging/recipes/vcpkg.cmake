# Does what a port asks of vcpkg, by the same calls of CMake, for one build type: a package is in CURRENT_PACKAGES_DIR
# afterwards. Wanted are PORT_DIR, FEATURES, WORK_DIR, CURRENT_PACKAGES_DIR and what run_stranger.cmake defines.

function(vcpkg_check_features)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUT_FEATURE_OPTIONS" "FEATURES")
    set(options "")
    while(arg_FEATURES)
        list(POP_FRONT arg_FEATURES feature option)
        if(feature IN_LIST FEATURES)
            list(APPEND options -D${option}=ON)
        else()
            list(APPEND options -D${option}=OFF)
        endif()
    endwhile()
    set(${arg_OUT_FEATURE_OPTIONS} "${options}" PARENT_SCOPE)
endfunction()

function(vcpkg_cmake_configure)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "SOURCE_PATH" "OPTIONS")
    configure_and_build(
        ${arg_SOURCE_PATH} ${WORK_DIR}/build ${arg_OPTIONS} -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=${SHARED}
        -DCMAKE_INSTALL_PREFIX=${CURRENT_PACKAGES_DIR} -DCMAKE_INSTALL_LIBDIR=lib
    )
endfunction()

function(vcpkg_cmake_install)
    run(${CMAKE_COMMAND} --install ${WORK_DIR}/build)
endfunction()

# A package's files for CMake go to share/<package>, one folder nearer to the root.
function(vcpkg_cmake_config_fixup)
    cmake_parse_arguments(PARSE_ARGV 0 arg "DO_NOT_DELETE_PARENT_CONFIG_PATH" "PACKAGE_NAME;CONFIG_PATH" "")
    set(share ${CURRENT_PACKAGES_DIR}/share/${arg_PACKAGE_NAME})
    file(COPY ${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH}/ DESTINATION ${share})
    file(REMOVE_RECURSE ${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH})
    if(NOT arg_DO_NOT_DELETE_PARENT_CONFIG_PATH)
        cmake_path(GET arg_CONFIG_PATH PARENT_PATH parent)
        file(REMOVE_RECURSE ${CURRENT_PACKAGES_DIR}/${parent})
    endif()
    file(GLOB files ${share}/*.cmake)
    foreach(file IN LISTS files)
        file(READ ${file} text)
        string(REGEX REPLACE
            "get_filename_component\\(_IMPORT_PREFIX \"\\\${_IMPORT_PREFIX}\" PATH\\)\nget_filename_component"
            "get_filename_component" text "${text}"
        )
        string(REPLACE "/../../../\" ABSOLUTE" "/../../\" ABSOLUTE" text "${text}")
        file(WRITE ${file} "${text}")
    endforeach()
endfunction()

function(vcpkg_copy_pdbs)
endfunction()

function(vcpkg_fixup_pkgconfig)
endfunction()

function(vcpkg_copy_tools)
    cmake_parse_arguments(PARSE_ARGV 0 arg "AUTO_CLEAN" "" "TOOL_NAMES")
    foreach(tool IN LISTS arg_TOOL_NAMES)
        set(program ${CURRENT_PACKAGES_DIR}/tools/${PORT}/${tool})
        file(COPY ${CURRENT_PACKAGES_DIR}/bin/${tool} DESTINATION ${CURRENT_PACKAGES_DIR}/tools/${PORT})
        file(RPATH_CHANGE FILE ${program} OLD_RPATH $ORIGIN/../lib NEW_RPATH $ORIGIN/../../lib)
    endforeach()
endfunction()

function(vcpkg_install_copyright)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "FILE_LIST")
    file(COPY_FILE ${arg_FILE_LIST} ${CURRENT_PACKAGES_DIR}/share/${PORT}/copyright)
endfunction()
