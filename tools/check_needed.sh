#!/bin/sh
# Usage: check_needed.sh READELF PROGRAM
# Fails unless the program's NEEDED entries are exactly libc and libzovqmi.
readelf=${1:?readelf}; program=${2:?program}
needed=$("$readelf" -d "$program" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | sort | tr '\n' ' ')
echo "$program NEEDED: $needed"
[ "$needed" = "libc.so.6 libzovqmi.so.1 " ] || { echo "expected: libc.so.6 libzovqmi.so.1" >&2; exit 1; }
