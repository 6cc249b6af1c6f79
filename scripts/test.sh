#!/usr/bin/env bash
# Builds the library and runs the whole test suite three times: on this
# machine, for the 32-bit little-endian MIPS target under qemu-mipsel, and for
# big-endian MIPS under qemu-mips (so that no wire datum can depend on the
# host's byte order).  Installs the build tools a fresh Debian machine lacks.
# Fails if any of the three fails.
#
# Usage: scripts/test.sh [host|mipsel|mips ...]   (default: all three)
set -euo pipefail
cd "$(dirname "$0")/.."

legs=("$@")
[ ${#legs[@]} -gt 0 ] || legs=(host mipsel mips)

need=()
command -v cmake >/dev/null || need+=(cmake)
command -v g++ >/dev/null || need+=(g++)
command -v gcc >/dev/null || need+=(gcc)
[ -f /usr/include/gtest/gtest.h ] || need+=(libgtest-dev)
[ -f /usr/src/googletest/CMakeLists.txt ] || need+=(googletest)
for leg in "${legs[@]}"; do
  case $leg in
    host) ;;
    mipsel|mips)
      command -v "$leg-linux-gnu-g++" >/dev/null || need+=("g++-$leg-linux-gnu")
      command -v "qemu-$leg" >/dev/null || need+=(qemu-user)
      ;;
    *) echo "unknown leg: $leg (host, mipsel or mips)" >&2; exit 2 ;;
  esac
done
if [ ${#need[@]} -gt 0 ]; then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq $(printf '%s\n' "${need[@]}" | sort -u)
fi

mkdir -p build
failed=()
summary=()
passed_total=0
failed_total=0
for leg in "${legs[@]}"; do
  echo "=== $leg ==="
  log=build/test-$leg.log
  start=$SECONDS
  if cmake --workflow --preset "$leg" --fresh 2>&1 | tee "$log"; then
    status=ok
  else
    status=FAILED
    failed+=("$leg")
  fi
  # ctest's closing line: "NN% tests passed, F tests failed out of T"
  line=$(grep -E '^[0-9]+% tests passed, [0-9]+ tests? failed out of [0-9]+' "$log" | tail -1 || true)
  if [ -n "$line" ]; then
    f=$(sed -E 's/.* ([0-9]+) tests? failed out of ([0-9]+).*/\1/' <<<"$line")
    t=$(sed -E 's/.* ([0-9]+) tests? failed out of ([0-9]+).*/\2/' <<<"$line")
    passed_total=$((passed_total + t - f))
    failed_total=$((failed_total + f))
    summary+=("$leg: $status, $((t - f)) of $t tests passed, $((SECONDS - start)) s")
  else
    summary+=("$leg: $status, no test ran, $((SECONDS - start)) s")
    [ "$status" = FAILED ] || failed+=("$leg")
  fi
done

echo "=== summary ==="
printf '%s\n' "${summary[@]}"
echo "total: $passed_total passed, $failed_total failed"
if [ ${#failed[@]} -gt 0 ]; then
  echo "failed legs: ${failed[*]}" >&2
  exit 1
fi
