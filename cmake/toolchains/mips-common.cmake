# Common settings of the MIPS toolchain files.  Expects ZOVQMI_TRIPLE,
# ZOVQMI_PROCESSOR and ZOVQMI_QEMU to be set by the including file.
#
# Uses Debian's cross compilers (g++-<triple>) and runs target programs with
# qemu-user, so that ctest executes the target's test programs under
# emulation.  The target's GoogleTest is built from Debian's sources.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${ZOVQMI_PROCESSOR})

set(CMAKE_C_COMPILER ${ZOVQMI_TRIPLE}-gcc)
set(CMAKE_CXX_COMPILER ${ZOVQMI_TRIPLE}-g++)
# Binutils of the target: check_symbols.cmake and tools/footprint.sh read the
# target's objects with these.
foreach(tool AR RANLIB READELF NM OBJDUMP OBJCOPY STRIP)
  string(TOLOWER ${tool} name)
  find_program(CMAKE_${tool} ${ZOVQMI_TRIPLE}-${name} REQUIRED)
endforeach()

# Libraries and headers of the target only; programs of the host.
set(CMAKE_FIND_ROOT_PATH /usr/${ZOVQMI_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Target programs (the tests) run under qemu-user with the target's loader
# and libraries from /usr/<triple>.
find_program(ZOVQMI_QEMU_PROGRAM ${ZOVQMI_QEMU} REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR ${ZOVQMI_QEMU_PROGRAM} -L /usr/${ZOVQMI_TRIPLE})

# GoogleTest sources, compiled for the target by tests/CMakeLists.txt.
set(ZOVQMI_GTEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest source tree built for the target")
