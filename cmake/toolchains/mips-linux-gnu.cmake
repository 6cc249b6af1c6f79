# 32-bit big-endian MIPS Linux: builds and tests the library on a host whose
# byte order is the opposite of the wire's, so that no wire datum may depend
# on host byte order.
set(ZOVQMI_TRIPLE mips-linux-gnu)
set(ZOVQMI_PROCESSOR mips)
set(ZOVQMI_QEMU qemu-mips)
include(${CMAKE_CURRENT_LIST_DIR}/mips-common.cmake)
