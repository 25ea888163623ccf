# Linux, 64 bits on ARM.
set(triple aarch64-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/CrossDebian.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/qemu-aarch64 -L /usr/${triple})
