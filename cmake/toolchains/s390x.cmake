# Linux, 64 bits, the greatest byte first.
set(triple s390x-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/CrossDebian.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/qemu-s390x -L /usr/${triple})
