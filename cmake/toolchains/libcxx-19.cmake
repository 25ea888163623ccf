# This machine, with the newest second compiler and second standard library that Debian 12 has. The packages of the
# latter cannot lie beside those of the older one: scripts/platforms unpacks them.
set(llvm ${CMAKE_CURRENT_LIST_DIR}/../../build/llvm-19/usr/lib/llvm-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -isystem ${llvm}/include/c++/v1")
foreach(kind IN ITEMS EXE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-stdlib=libc++ -L${llvm}/lib -Wl,-rpath,${llvm}/lib")
endforeach()
set(CMAKE_PROJECT_OstraParameters_INCLUDE ${CMAKE_CURRENT_LIST_DIR}/Dependencies.cmake)
