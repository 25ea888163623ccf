# Linux, 32 bits. This machine's processor runs its programs as they are.
set(triple i686-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/CrossDebian.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/${triple}/lib/ld-linux.so.2 --library-path /usr/${triple}/lib)
