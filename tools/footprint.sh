#!/usr/bin/env bash
# Footprint of the shared library: builds (or reuses) release builds of
# libzovqmi.so for this machine and for the mipsel target and prints, for
# each, the size of a stripped copy and its text/data/bss.  The budget is
# 128 KiB stripped on mipsel.
#
# Usage: tools/footprint.sh [--check] [--build-type Release|MinSizeRel] [--budget BYTES]
#   --check       exit 1 when the mipsel library is over budget (otherwise
#                 the verdict is only printed and the exit status is 0)
#   --build-type  CMake build type of both builds (default Release)
#   --budget      the mipsel bound in bytes (default 131072, 128 KiB)
# Build directories: build/footprint-<build type>-{host,mipsel}.
set -euo pipefail
cd "$(dirname "$0")/.."

check=0
build_type=Release
budget=$((128 * 1024))
while [ $# -gt 0 ]; do
  case $1 in
    --check) check=1 ;;
    --build-type) build_type=${2:?--build-type needs a value}; shift ;;
    --build-type=*) build_type=${1#*=} ;;
    --budget) budget=${2:?--budget needs a value}; shift ;;
    --budget=*) budget=${1#*=} ;;
    -h|--help) sed -n '2,12p' "$0" | sed 's/^# \{0,1\}//'; exit 0 ;;
    *) echo "unknown option: $1" >&2; exit 2 ;;
  esac
  shift
done

root=$PWD
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# build NAME TOOLCHAIN-FILE-OR-EMPTY: configures once, then builds incrementally.
build() {
  local dir=build/footprint-$build_type-$1 args=()
  [ -z "$2" ] || args+=(-DCMAKE_TOOLCHAIN_FILE="$root/$2")
  if [ ! -f "$dir/CMakeCache.txt" ]; then
    cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE="$build_type" -DZOVQMI_BUILD_TESTS=OFF \
      "${args[@]}" >"$tmp/configure-$1.log" 2>&1 || { cat "$tmp/configure-$1.log" >&2; return 1; }
  fi
  cmake --build "$dir" --target zovqmi -j 2 >"$tmp/build-$1.log" 2>&1 ||
    { cat "$tmp/build-$1.log" >&2; return 1; }
}

# report NAME TOOL-PREFIX: prints the figures, sets $stripped.
report() {
  local dir=build/footprint-$build_type-$1 prefix=$2
  local lib
  lib=$(readlink -f "$dir/libzovqmi.so")
  cp "$lib" "$tmp/lib-$1.so"
  "${prefix}strip" --strip-all "$tmp/lib-$1.so"
  stripped=$(stat -c %s "$tmp/lib-$1.so")
  local text data bss
  read -r text data bss < <("${prefix}size" -B "$lib" | awk 'NR == 2 {print $1, $2, $3}')
  printf '%-7s %-16s stripped %7d B (%6.1f KiB)   text %7d  data %6d  bss %6d\n' \
    "$1" "$(basename "$lib")" "$stripped" "$(awk -v b="$stripped" 'BEGIN {print b / 1024}')" "$text" "$data" "$bss"
}

command -v mipsel-linux-gnu-gcc >/dev/null ||
  { echo "mipsel-linux-gnu-gcc is needed (apt-get install g++-mipsel-linux-gnu)" >&2; exit 2; }

build host ""
build mipsel cmake/toolchains/mipsel-linux-gnu.cmake

echo "libzovqmi footprint ($build_type build, $(ls src/services/*.cpp | wc -l) service files)"
report host ""
report mipsel mipsel-linux-gnu-
printf 'budget  mipsel stripped <= %d B (%s KiB): ' "$budget" "$(awk -v b="$budget" 'BEGIN {print b / 1024}')"
if [ "$stripped" -le "$budget" ]; then
  echo "met ($((budget - stripped)) B to spare)"
else
  echo "EXCEEDED by $((stripped - budget)) B"
  [ "$check" -eq 0 ] || exit 1
fi

# --- router programs --------------------------------------------------------
# Every router program of the tree (zovqmi-cli, and zovqmi-connect where it
# exists), built in the same mipsel build, linked against the shared
# library and stripped: at most 64 KiB each, with libc and libzovqmi as the
# only NEEDED entries.  --check fails on either.
program_budget=$((64 * 1024))
program_failed=0
dir=build/footprint-$build_type-mipsel
targets=$(cmake --build "$dir" --target help 2>/dev/null || true)
for prog in zovqmi-cli zovqmi-connect; do
  grep -qw -- "$prog" <<<"$targets" || continue
  cmake --build "$dir" --target "$prog" -j 2 >"$tmp/build-$prog.log" 2>&1 ||
    { cat "$tmp/build-$prog.log" >&2; exit 1; }
  bin=$(find "$dir/tools" -type f -name "$prog" -perm -u+x | head -1)
  cp "$bin" "$tmp/$prog"
  mipsel-linux-gnu-strip --strip-all "$tmp/$prog"
  size=$(stat -c %s "$tmp/$prog")
  needed=$(mipsel-linux-gnu-readelf -d "$tmp/$prog" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | sort | tr '\n' ' ')
  printf 'mipsel  %-16s stripped %7d B (%6.1f KiB)   NEEDED %s\n' \
    "$prog" "$size" "$(awk -v b="$size" 'BEGIN {print b / 1024}')" "$needed"
  printf 'budget  %s stripped <= %d B (64 KiB): ' "$prog" "$program_budget"
  if [ "$size" -le "$program_budget" ]; then
    echo "met ($((program_budget - size)) B to spare)"
  else
    echo "EXCEEDED by $((size - program_budget)) B"
    program_failed=1
  fi
  if [ "$needed" != "libc.so.6 libzovqmi.so.1 " ]; then
    echo "NEEDED of $prog: $needed (want libc.so.6 libzovqmi.so.1)"
    program_failed=1
  fi
done
[ "$check" -eq 0 ] || [ "$program_failed" -eq 0 ] || exit 1
