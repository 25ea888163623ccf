# Linux, 32 bits on ARM.
set(triple arm-linux-gnueabihf)
include(${CMAKE_CURRENT_LIST_DIR}/CrossDebian.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/qemu-arm -L /usr/${triple})
