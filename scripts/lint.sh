#!/usr/bin/env bash
# Static checks: the generated fuzz tables match the header, cppcheck (with
# the suppressions in .cppcheck-suppressions) and clang-tidy (with .clang-tidy)
# run clean over the library.  Prints one line per check and a closing line in
# ctest's form; fails if any check fails.
set -uo pipefail
cd "$(dirname "$0")/.."

jobs=$(nproc 2>/dev/null || echo 2)
sources=(src/msg/*.cpp src/transport/*.cpp src/services/*.cpp)
mkdir -p build
passed=0
failed=0
check() {
  local name=$1
  shift
  local log=build/lint-$name.log start=$SECONDS
  if "$@" >"$log" 2>&1; then
    echo "$name: ok ($((SECONDS - start)) s)"
    passed=$((passed + 1))
  else
    echo "$name: FAILED ($((SECONDS - start)) s)"
    tail -40 "$log"
    failed=$((failed + 1))
  fi
}

check fuzz-tables python3 fuzz/gen_table.py --check
check cppcheck cppcheck --enable=warning,performance,portability --error-exitcode=1 --inline-suppr \
  --suppressions-list=.cppcheck-suppressions --std=c++17 --language=c++ -I include -I src -j "$jobs" --quiet \
  "${sources[@]}"
# clang-tidy reads the flags of a clang build's compile_commands.json.
tidy() {
  cmake -S . -B build/lint -DCMAKE_BUILD_TYPE=Debug -DCMAKE_EXPORT_COMPILE_COMMANDS=ON \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DZOVQMI_BUILD_TESTS=OFF \
    -DZOVQMI_BUILD_TOOLS=OFF -DZOVQMI_BUILD_BENCH=OFF >/dev/null &&
    printf '%s\n' "${sources[@]}" | xargs -P "$jobs" -n 4 clang-tidy -p build/lint --quiet
}
check clang-tidy tidy

total=$((passed + failed))
echo "$((100 * passed / total))% tests passed, $failed tests failed out of $total"
[ "$failed" -eq 0 ]
