#!/usr/bin/env bash
# Runs the first example of the reference (docs/examples/first_session.c)
# against the simulated modem's pseudo-terminal: it must obtain a WDS client
# id, read the packet service status and exit 0.
# Usage: run_first_example.sh <zovqmi-sim> <first_session>
set -euo pipefail
sim=$1
example=$2
log=$(mktemp)
"$sim" --pty >"$log" 2>&1 &
simpid=$!
trap 'kill $simpid 2>/dev/null; wait $simpid 2>/dev/null || true; rm -f "$log"' EXIT
device=""
for _ in $(seq 100); do
  device=$(sed -n 's/^device: //p' "$log")
  [ -n "$device" ] && break
  sleep 0.05
done
[ -n "$device" ] || { echo "the simulated modem printed no device"; cat "$log"; exit 1; }
out=$(timeout 20 "$example" "$device")
echo "$out"
grep -q '^WDS client id [0-9]' <<<"$out"
grep -q '^packet service status 1 ' <<<"$out"
