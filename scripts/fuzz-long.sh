#!/usr/bin/env bash
# A long fuzzing run by hand, beyond CI's budget: every target of the fuzz
# harness (fuzz/run.sh) in turn, the seeds and past reproducers first, then
# new inputs, with SECONDS in total shared evenly between the targets.  The
# corpus grows in build/asan/corpus/<target> and is kept for the next run;
# findings are left in build/asan/fuzz-findings.
#
# Usage: scripts/fuzz-long.sh [SECONDS]   (default 3600: an hour in total)
# Prints fuzz/run.sh's line per target (runs, edges, features, corpus) and
# the total number of executions.
set -uo pipefail
cd "$(dirname "$0")/.."

total=${1:-3600}
case $total in
  ''|*[!0-9]*) echo "usage: scripts/fuzz-long.sh [SECONDS]" >&2; exit 2 ;;
esac
targets=$(grep -oE '^targets=\(.*' fuzz/run.sh | head -1)
count=$(sed -n '/^targets=(/,/)/p' fuzz/run.sh | grep -oE '[a-z]+:[A-Za-z]+' | wc -l)
[ "$count" -gt 0 ] || { echo "no targets found in fuzz/run.sh ($targets)" >&2; exit 2; }
per=$((total / count))
[ "$per" -gt 0 ] || per=1
echo "fuzzing $count targets for $per s each ($((per * count)) s in total)"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
./fuzz/run.sh "$per" | tee "$log"
status=${PIPESTATUS[0]}
runs=$(awk '/ runs,/ {for (i = 1; i <= NF; i++) if ($(i + 1) == "runs,") s += $i} END {print s + 0}' "$log")
echo "total: $runs executions in $((per * count)) s"
exit "$status"
