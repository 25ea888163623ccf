# This machine's processor with musl in place of glibc, and what make-musl-system makes of both compilers for it.
set(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../../build/musl-system)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_COMPILER_TARGET x86_64-linux-musl)
set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)
foreach(kind IN ITEMS EXE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT -Wl,-rpath,${CMAKE_SYSROOT}/usr/lib)
endforeach()
set(CMAKE_PROJECT_OstraParameters_INCLUDE ${CMAKE_CURRENT_LIST_DIR}/Dependencies.cmake)
