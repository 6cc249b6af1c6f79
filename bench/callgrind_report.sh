#!/usr/bin/env bash
# Deterministic instruction counts: runs the fixed workload (every scenario
# of bench/scenarios.cpp N times, each inside its own function) under
# valgrind's callgrind and prints the instructions per message of each
# scenario (inclusive cost of its function divided by N).  The counts do not
# depend on the machine's load, so two builds can be compared exactly.
#
# Usage: bench/callgrind_report.sh [-n N] [--build-dir DIR]
#   -n N          operations per scenario (default 1000)
#   --build-dir   a configured host build with the benchmarks (default
#                 build/bench-release, configured Release if missing)
set -euo pipefail
cd "$(dirname "$0")/.."

n=1000
dir=build/bench-release
while [ $# -gt 0 ]; do
  case $1 in
    -n) n=${2:?-n needs a value}; shift ;;
    --build-dir) dir=${2:?--build-dir needs a value}; shift ;;
    -h|--help) sed -n '2,12p' "$0" | sed 's/^# \{0,1\}//'; exit 0 ;;
    *) echo "unknown option: $1" >&2; exit 2 ;;
  esac
  shift
done

command -v valgrind >/dev/null || { echo "valgrind is needed (apt-get install valgrind)" >&2; exit 2; }
if [ ! -f "$dir/CMakeCache.txt" ]; then
  cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=Release -DZOVQMI_BUILD_TESTS=OFF -DZOVQMI_BUILD_BENCH=ON >/dev/null
fi
cmake --build "$dir" --target zovqmi_workload -j 2 >/dev/null

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
# The workload runs once for its labels, then under callgrind.
"$dir/bench/zovqmi_workload" 1 >"$tmp/labels"
valgrind --tool=callgrind --callgrind-out-file="$tmp/out" "$dir/bench/zovqmi_workload" "$n" >/dev/null 2>"$tmp/log" ||
  { cat "$tmp/log" >&2; exit 1; }
callgrind_annotate --inclusive=yes --threshold=100 "$tmp/out" 2>/dev/null >"$tmp/annotate"

echo "libzovqmi instructions per message (callgrind, $n operations per scenario, $(basename "$dir"))"
printf '%-40s %8s %12s\n' scenario bytes instr/msg
while IFS=$'\t' read -r index name bytes; do
  # The line of "(anonymous namespace)::scenario<index>(long)": its first column is the inclusive Ir.
  ir=$(grep -E "scenario<${index}ul?>\(long\)" "$tmp/annotate" | head -1 | awk '{gsub(",", "", $1); print $1}')
  [ -n "$ir" ] || { echo "no cost found for scenario $index ($name)" >&2; exit 1; }
  printf '%-40s %8d %12.1f\n' "$name" "$bytes" "$(awk -v a="$ir" -v b="$n" 'BEGIN {print a / b}')"
done <"$tmp/labels"
