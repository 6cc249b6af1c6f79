# 32-bit little-endian MIPS Linux: the target routers.
set(ZOVQMI_TRIPLE mipsel-linux-gnu)
set(ZOVQMI_PROCESSOR mipsel)
set(ZOVQMI_QEMU qemu-mipsel)
include(${CMAKE_CURRENT_LIST_DIR}/mips-common.cmake)
