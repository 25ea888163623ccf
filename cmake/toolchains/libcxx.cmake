# This machine, with the second compiler and the second standard library.
set(CMAKE_CXX_COMPILER clang++-14)
set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)
set(CMAKE_PROJECT_OstraParameters_INCLUDE ${CMAKE_CURRENT_LIST_DIR}/Dependencies.cmake)
