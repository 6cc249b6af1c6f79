#!/usr/bin/env bash
# Installs the built library into a scratch prefix and builds two consumers
# against it: a C program through pkg-config and a CMake project through
# find_package(zovqmi).  Both must build and run.
# Usage: check_install.sh <build-dir> <c-compiler>
set -euo pipefail
build=$1
cc=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(dirname "$(find "$prefix" -name zovqmi.pc)")/..

cat > "$work/app.c" <<'C'
#include <zovqmi.h>
int main(void) {
    uint8_t buf[16];
    return zovQMICTLGetClientIDReq(buf, (int)sizeof buf, ZOVQMI_SERVICE_NAS) == 10 ? 0 : 1;
}
C
export PKG_CONFIG_PATH=$libdir/pkgconfig
# shellcheck disable=SC2046
"$cc" -std=c99 "$work/app.c" $(pkg-config --cflags --libs zovqmi) -o "$work/app-pc"
LD_LIBRARY_PATH=$libdir "$work/app-pc"

mkdir -p "$work/consumer"
cp "$work/app.c" "$work/consumer/app.c"
cat > "$work/consumer/CMakeLists.txt" <<'CM'
cmake_minimum_required(VERSION 3.25)
project(consumer C)
find_package(zovqmi REQUIRED)
add_executable(app app.c)
target_link_libraries(app PRIVATE zovqmi::zovqmi)
CM
cmake -S "$work/consumer" -B "$work/consumer/build" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_C_COMPILER="$cc" >/dev/null
cmake --build "$work/consumer/build" >/dev/null
"$work/consumer/build/app"
echo "installed library: pkg-config and find_package consumers build and run"
