# What the tests and the tool need of others, made of what Debian has for this machine: the headers of libraries that
# are headers alone, in a folder of their own (the rest of /usr/include is of this machine), and GoogleTest's sources.

set(headers ${CMAKE_BINARY_DIR}/headers)
file(MAKE_DIRECTORY ${headers})
foreach(folder IN ITEMS rapidjson fmt CLI nlohmann fast_float)
    if(EXISTS /usr/include/${folder} AND NOT EXISTS ${headers}/${folder})
        file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
    endif()
endforeach()
# An assignment that nobody asks for is none to compilers that look at templates more closely.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 19
   AND IS_SYMLINK ${headers}/rapidjson
)
    file(REMOVE ${headers}/rapidjson)
    file(COPY /usr/include/rapidjson DESTINATION ${headers})
    file(READ ${headers}/rapidjson/document.h document)
    string(REGEX REPLACE "GenericStringRef& operator=[^\n]*\n" "" document "${document}")
    file(WRITE ${headers}/rapidjson/document.h "${document}")
endif()
set(RAPIDJSON_INCLUDE_DIR ${headers} CACHE PATH "Where RapidJSON is")
set(FAST_FLOAT_INCLUDE_DIR ${headers} CACHE PATH "Where fast_float is")

add_library(OstraHeaders INTERFACE)
target_include_directories(OstraHeaders SYSTEM INTERFACE ${headers})
target_compile_definitions(OstraHeaders INTERFACE FMT_HEADER_ONLY)
foreach(name IN ITEMS fmt::fmt fmt::fmt-header-only CLI11::CLI11 nlohmann_json::nlohmann_json)
    add_library(${name} ALIAS OstraHeaders)
endforeach()

set(googletest /usr/src/googletest)
add_library(
    OstraGoogleTest STATIC EXCLUDE_FROM_ALL
    ${googletest}/googletest/src/gtest-all.cc ${googletest}/googletest/src/gtest_main.cc
    ${googletest}/googlemock/src/gmock-all.cc
)
target_compile_features(OstraGoogleTest PUBLIC cxx_std_17)
target_include_directories(OstraGoogleTest SYSTEM PUBLIC ${googletest}/googletest/include ${googletest}/googlemock/include)
target_include_directories(OstraGoogleTest PRIVATE ${googletest}/googletest ${googletest}/googlemock)
foreach(name IN ITEMS GTest::gmock GTest::gtest_main)
    add_library(${name} ALIAS OstraGoogleTest)
endforeach()

foreach(package IN ITEMS fmt CLI11 nlohmann_json GTest) # is found: its targets are there
    string(TOLOWER ${package} file)
    file(TOUCH ${CMAKE_FIND_PACKAGE_REDIRECTS_DIR}/${file}-config.cmake)
endforeach()
