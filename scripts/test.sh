#!/usr/bin/env bash
# Builds the library and runs the whole test suite three times: on this
# machine, for the 32-bit little-endian MIPS target under qemu-mipsel, and for
# big-endian MIPS under qemu-mips (so that no wire datum can depend on the
# host's byte order).  Then the hostile-input legs: the suite once more under
# AddressSanitizer and UndefinedBehaviorSanitizer (asan, which also records
# the messages the tests parse as fuzz seeds), the fuzz harness over every
# parser, seeds first then a bounded run per service (fuzz), and the static
# checks (lint: cppcheck, clang-tidy, generated tables up to date), and the
# reference (docs: Doxygen with warnings as errors, every export documented,
# the manual pages render without warnings).
# Installs the build tools a fresh Debian machine lacks.  Fails if any leg fails.
#
# Usage: scripts/test.sh [host|mipsel|mips|asan|fuzz|lint|docs ...]   (default: all)
# ZOVQMI_FUZZ_SECONDS sets the fuzzing time per service (default 20).
set -euo pipefail
cd "$(dirname "$0")/.."

legs=("$@")
[ ${#legs[@]} -gt 0 ] || legs=(host mipsel mips asan fuzz lint docs)

need=()
command -v cmake >/dev/null || need+=(cmake)
command -v g++ >/dev/null || need+=(g++)
command -v gcc >/dev/null || need+=(gcc)
[ -f /usr/include/gtest/gtest.h ] || need+=(libgtest-dev)
[ -f /usr/src/googletest/CMakeLists.txt ] || need+=(googletest)
for leg in "${legs[@]}"; do
  case $leg in
    host)
      # the benchmarks and stack budget check, and the simulator's device node
      [ -f /usr/include/benchmark/benchmark.h ] || need+=(libbenchmark-dev)
      [ -f /usr/include/fuse3/fuse.h ] || need+=(libfuse3-dev)
      command -v fusermount3 >/dev/null || need+=(fuse3)
      command -v pkg-config >/dev/null || need+=(pkg-config)
      # the simulator's data path test: ping and ip in a private network namespace
      command -v ping >/dev/null || need+=(iputils-ping)
      command -v ip >/dev/null || need+=(iproute2)
      ;;
    mipsel|mips)
      command -v "$leg-linux-gnu-g++" >/dev/null || need+=("g++-$leg-linux-gnu")
      # the host simulator they run against
      [ -f /usr/include/fuse3/fuse.h ] || need+=(libfuse3-dev)
      command -v fusermount3 >/dev/null || need+=(fuse3)
      command -v pkg-config >/dev/null || need+=(pkg-config)
      command -v "qemu-$leg" >/dev/null || need+=(qemu-user)
      # zovqmi-connect's scenarios: ping and ip in a private network namespace
      command -v ping >/dev/null || need+=(iputils-ping)
      command -v ip >/dev/null || need+=(iproute2)
      ;;
    asan|fuzz)
      command -v clang >/dev/null || need+=(clang)
      command -v clang++ >/dev/null || need+=(clang)
      # libFuzzer and the sanitizer runtimes
      command -v clang >/dev/null && [ -f "$(clang -print-file-name=libclang_rt.fuzzer-x86_64.a)" ] ||
        need+=(libclang-rt-dev)
      # the asan build runs the simulator's and zovqmi-connect's scenarios too
      if [ "$leg" = asan ]; then
        [ -f /usr/include/fuse3/fuse.h ] || need+=(libfuse3-dev)
        command -v fusermount3 >/dev/null || need+=(fuse3)
        command -v pkg-config >/dev/null || need+=(pkg-config)
        command -v ping >/dev/null || need+=(iputils-ping)
        command -v ip >/dev/null || need+=(iproute2)
      fi
      ;;
    lint)
      command -v cppcheck >/dev/null || need+=(cppcheck)
      command -v clang-tidy >/dev/null || need+=(clang-tidy)
      command -v clang >/dev/null || need+=(clang)
      command -v python3 >/dev/null || need+=(python3)
      ;;
    docs)
      command -v doxygen >/dev/null || need+=(doxygen)
      command -v man >/dev/null || need+=(man-db)
      command -v groff >/dev/null || need+=(groff-base)
      command -v python3 >/dev/null || need+=(python3)
      ;;
    *) echo "unknown leg: $leg (host, mipsel, mips, asan, fuzz, lint or docs)" >&2; exit 2 ;;
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
  case $leg in
    mipsel|mips)
      # The cross legs run the router tools under qemu against the simulated
      # modem built for this machine (build/host/sim/zovqmi-sim).
      if [ ! -x build/host/sim/zovqmi-sim ]; then
        cmake --preset host >/dev/null && cmake --build build/host --target zovqmi-sim -j2 >/dev/null
      fi ;;
  esac
  case $leg in
    fuzz) run=(./fuzz/run.sh) ;;
    lint) run=(./scripts/lint.sh) ;;
    docs) run=(python3 docs/check_docs.py) ;;
    *) run=(cmake --workflow --preset "$leg" --fresh) ;;
  esac
  if "${run[@]}" 2>&1 | tee "$log"; then
    status=ok
  else
    status=FAILED
    failed+=("$leg")
  fi
  # ctest's closing line: "NN% tests passed, F tests failed out of T" (the
  # fuzz and lint legs print one in the same form: one "test" per target or check)
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
