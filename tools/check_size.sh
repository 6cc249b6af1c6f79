#!/bin/sh
# Usage: check_size.sh STRIP PROGRAM BUDGET
# Fails unless a stripped copy of the program is at most BUDGET bytes.
strip=${1:?strip}; program=${2:?program}; budget=${3:?budget}
copy=$(mktemp) || exit 1
trap 'rm -f "$copy"' EXIT
cp "$program" "$copy" && "$strip" --strip-all "$copy" || exit 1
size=$(stat -c %s "$copy")
echo "$program stripped: $size B (budget $budget B)"
[ "$size" -le "$budget" ]
