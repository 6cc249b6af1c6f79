# What runs on the router (zovqmi-cli, zovqmi-connect and their session
# layer) needs libc and libzovqmi alone: compiled without exceptions, RTTI or
# thread-safe statics, linked with the C driver so that neither libstdc++ nor
# libgcc_s becomes NEEDED.
set(ZOVQMI_ROUTER_FLAGS -Os -Wall -Wextra -fno-exceptions -fno-rtti -fno-threadsafe-statics
    -fno-asynchronous-unwind-tables -ffunction-sections -fdata-sections)

# A program's own objects are built as position-dependent code (smaller,
# above all on MIPS, where -mno-shared drops the PIC call sequences); the
# static libraries it shares with the tests stay position-independent.
# On MIPS they are also compiled as MIPS16e (about a third smaller), which
# the MIPS32 cores of routers carry, like the library; ZOVQMI_MIPS16=OFF
# builds plain MIPS32 code for a core without it.
set(ZOVQMI_ROUTER_PROGRAM_FLAGS -fno-pie)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^mips")
  list(APPEND ZOVQMI_ROUTER_PROGRAM_FLAGS -mno-shared)
  if(ZOVQMI_MIPS16)
    list(APPEND ZOVQMI_ROUTER_PROGRAM_FLAGS -mips16 -minterlink-compressed)
  endif()
endif()

function(zovqmi_router_program target)
  target_compile_options(${target} PRIVATE ${ZOVQMI_ROUTER_FLAGS} ${ZOVQMI_ROUTER_PROGRAM_FLAGS})
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
  target_link_options(${target} PRIVATE -no-pie)
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE C)
  target_link_options(${target} PRIVATE -static-libgcc -Wl,--as-needed -Wl,--gc-sections)
endfunction()

# A test that the program's NEEDED entries are libc and libzovqmi alone
# (and the dynamic loader's own libraries that libc may bring: none else).
# A sanitizer build links the sanitizer runtime and what it needs (libm
# among them): the test is for the real builds.
function(zovqmi_router_needed_test target)
  if(ZOVQMI_BUILD_TESTS AND NOT CMAKE_C_FLAGS MATCHES "-fsanitize=" AND NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize=")
    add_test(NAME ${target}_needs_libc_and_libzovqmi_only
      COMMAND ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/check_needed.sh ${CMAKE_READELF} $<TARGET_FILE:${target}>)
  endif()
endfunction()

# A test that the stripped program fits its budget on the target routers
# (32-bit little-endian MIPS; tools/footprint.sh reports the same figure).
function(zovqmi_router_size_test target budget)
  if(ZOVQMI_BUILD_TESTS AND CMAKE_SYSTEM_PROCESSOR STREQUAL "mipsel")
    add_test(NAME ${target}_stripped_fits_${budget}_bytes
      COMMAND ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/check_size.sh ${CMAKE_STRIP} $<TARGET_FILE:${target}> ${budget})
  endif()
endfunction()

# The cross legs run the router tools under qemu-user against the simulated
# modem built for the build host (scripts/test.sh builds it first).
if(CMAKE_CROSSCOMPILING)
  set(ZOVQMI_HOST_SIM "${PROJECT_SOURCE_DIR}/build/host/sim/zovqmi-sim" CACHE FILEPATH
      "zovqmi-sim built for the build host, for the cross legs' end-to-end tests")
endif()
