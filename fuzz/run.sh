#!/usr/bin/env bash
# Runs the fuzz harness of build/asan once per service: first every seed as a
# regression run (the seeds the unit tests recorded and the reproducers of
# past findings in fuzz/regressions), then new inputs for a bounded time.
# Any finding (a sanitizer report, a guard overwritten, a crash, a timeout)
# fails the run; reproducers are left in build/asan/fuzz-findings.
#
# Usage: fuzz/run.sh [seconds per target]   (default 20, or $ZOVQMI_FUZZ_SECONDS)
# Prints one line per target and a closing line in ctest's form.
set -uo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-${ZOVQMI_FUZZ_SECONDS:-20}}
build=build/asan
fuzzer=$build/fuzz/qmi_fuzz
# target name and the prefix of the exports it covers
targets=(ctl:zovQMICTL wds:zovQMIWDS dms:zovQMIDMS nas:zovQMINAS qos:zovQMIQOS codec:fn
         wms:zovQMIWMS pds:zovQMIPDS pbm:zovQMIPBM framing:zovQMIMSM)

if [ ! -x "$fuzzer" ]; then
  cmake --preset asan >/dev/null && cmake --build --preset asan || exit 1
fi
# Seeds: recorded by the unit tests of the asan build when they run.
if [ -z "$(ls -A $build/corpus/tap 2>/dev/null)" ]; then
  ctest --preset asan >/dev/null || { echo "the asan unit tests failed" >&2; exit 1; }
fi

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
findings=$build/fuzz-findings
mkdir -p "$findings"
passed=0
failed=0
for t in "${targets[@]}"; do
  name=${t%%:*}
  prefix=${t#*:}
  corpus=$build/corpus/$name
  mkdir -p "$corpus"
  cp $build/corpus/tap/"$prefix"* "$corpus"/ 2>/dev/null
  seeds=$(ls "$corpus" | wc -l)
  log=$build/fuzz-$name.log
  status=ok
  export ZOVQMI_FUZZ_ONLY=$prefix
  # Regression: every seed and every past reproducer, once.
  if ! "$fuzzer" -runs=0 -max_len=4097 -timeout=10 -artifact_prefix="$findings/$name-" \
       "$corpus" fuzz/regressions >"$log" 2>&1; then
    status="FAILED (regression)"
  # Fuzzing: new inputs for a bounded time, growing the corpus.
  elif ! "$fuzzer" -max_total_time="$seconds" -max_len=4097 -timeout=10 -print_final_stats=1 \
         -artifact_prefix="$findings/$name-" "$corpus" >>"$log" 2>&1; then
    status="FAILED (finding)"
  fi
  runs=$(grep -E '^stat::number_of_executed_units:' "$log" | tail -1 | awk '{print $2}')
  cov=$(grep -oE 'cov: [0-9]+' "$log" | tail -1 | awk '{print $2}')
  ft=$(grep -oE 'ft: [0-9]+' "$log" | tail -1 | awk '{print $2}')
  printf '%-8s %-20s %8s runs, %5s edges, %5s features, %4s seeds -> %4s corpus\n' \
    "$name" "$status" "${runs:-?}" "${cov:-?}" "${ft:-?}" "$seeds" "$(ls "$corpus" | wc -l)"
  if [ "$status" = ok ]; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    grep -E '^qmi_fuzz:|^SUMMARY|runtime error|^==[0-9]+==ERROR' "$log" | head -5
  fi
done
total=$((passed + failed))
echo "$((total ? 100 * passed / total : 0))% tests passed, $failed tests failed out of $total"
[ "$failed" -eq 0 ]
