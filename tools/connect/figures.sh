#!/usr/bin/env bash
# Figures of zovqmi-connect: the size of the stripped mipsel program, its
# NEEDED entries, its resident memory beyond what libc itself takes, and
# (with --idle SECONDS) the CPU time it uses while connected and idle.
#
# Usage: tools/connect/figures.sh [--build-type Release|MinSizeRel] [--idle SECONDS]
#   Builds build/connect-figures-<type>-{host,mipsel} (zovqmi-connect only,
#   and the host's simulator).  Memory and CPU are measured on this machine,
#   against the simulated modem in a private network namespace (root only).
# Budgets: 64 KiB stripped on mipsel; 1 MiB resident beyond libc's own.
set -euo pipefail
cd "$(dirname "$0")/../.."

build_type=Release
idle=0
while [ $# -gt 0 ]; do
    case $1 in
        --build-type) build_type=${2:?}; shift ;;
        --idle) idle=${2:?}; shift ;;
        --in-netns) break ;;
        -h|--help) sed -n '2,11p' "$0" | sed 's/^# \{0,1\}//'; exit 0 ;;
        *) echo "unknown option: $1" >&2; exit 2 ;;
    esac
    shift
done

if [ "${1:-}" != --in-netns ]; then
    tmp=$(mktemp -d)
    trap 'rm -rf "$tmp"' EXIT
    build() {
        local dir=build/connect-figures-$build_type-$1 args=()
        [ -z "$2" ] || args+=(-DCMAKE_TOOLCHAIN_FILE="$PWD/$2")
        if [ ! -f "$dir/CMakeCache.txt" ]; then
            cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE="$build_type" -DZOVQMI_BUILD_TESTS=OFF "${args[@]}" \
                >"$tmp/configure-$1.log" 2>&1 || { cat "$tmp/configure-$1.log" >&2; return 1; }
        fi
        shift 2
        cmake --build "$dir" --target "$@" -j 2 >"$tmp/build.log" 2>&1 || { cat "$tmp/build.log" >&2; return 1; }
    }
    build mipsel cmake/toolchains/mipsel-linux-gnu.cmake zovqmi-connect
    build host "" zovqmi-connect zovqmi-sim
    m=build/connect-figures-$build_type-mipsel/tools/zovqmi-connect
    cp "$m" "$tmp/connect"
    mipsel-linux-gnu-strip --strip-all "$tmp/connect"
    size=$(stat -c %s "$tmp/connect")
    echo "zovqmi-connect ($build_type build)"
    printf 'mipsel stripped: %d B (%.1f KiB), budget 64 KiB: %s\n' "$size" "$(awk -v b="$size" 'BEGIN {print b / 1024}')" \
        "$([ "$size" -le 65536 ] && echo met || echo EXCEEDED)"
    echo "mipsel NEEDED: $(mipsel-linux-gnu-readelf -d "$m" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | tr '\n' ' ')"
    h=build/connect-figures-$build_type-host
    echo "host NEEDED: $(readelf -d "$h/tools/zovqmi-connect" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | tr '\n' ' ')"
    if [ "$(id -u)" != 0 ] || ! unshare -n true 2>/dev/null; then
        echo "memory and CPU: need root and a private network namespace; skipped"
        exit 0
    fi
    # The baseline: a program that is libc alone, doing nothing.
    printf '#include <unistd.h>\nint main(void) { pause(); return 0; }\n' >"$tmp/idle.c"
    cc -O2 -o "$tmp/idle" "$tmp/idle.c"
    exec unshare -n "$BASH" "$0" --idle "$idle" --in-netns "$h" "$tmp"
fi

# In the namespace: the simulator, the daemon, the measurements.
h=$2 tmp=$3
ip link set lo up
"$h/sim/zovqmi-sim" --fuse "$tmp/dev" --tun wwan0 --control "$tmp/ctl" --no-pin >"$tmp/sim.log" 2>&1 &
sim=$!
trap 'kill $sim 2>/dev/null; wait $sim 2>/dev/null' EXIT
for _ in $(seq 100); do [ -e "$tmp/dev/cdc-wdm0" ] && break; sleep 0.1; done
"$h/tools/zovqmi-connect" -d "$tmp/dev/cdc-wdm0" --apn internet --ifname wwan0 --state-file "$tmp/state.json" \
    --resolv "$tmp/resolv" >"$tmp/connect.log" 2>&1 &
pid=$!
for _ in $(seq 200); do grep -q '"state":"connected"' "$tmp/state.json" 2>/dev/null && break; sleep 0.1; done
grep -q '"state":"connected"' "$tmp/state.json" || { echo "not connected"; cat "$tmp/connect.log"; exit 1; }
"$tmp/idle" &
base=$!
sleep 0.5
rss() { sed -n 's/^VmRSS:[[:space:]]*\([0-9]*\) kB/\1/p' "/proc/$1/status"; }
r=$(rss "$pid") b=$(rss "$base")
kill "$base"
echo "host resident: zovqmi-connect $r KiB, a libc-only program $b KiB, beyond libc's own $((r - b)) KiB" \
    "(budget 1024 KiB: $([ $((r - b)) -le 1024 ] && echo met || echo EXCEEDED))"
if [ "$idle" -gt 0 ]; then
    # Time on the CPU in nanoseconds (the scheduler's count: finer than clock ticks).
    cpu() { awk '{print $1}' "/proc/$1/schedstat"; }
    t0=$(cpu "$pid")
    sleep "$idle"
    t1=$(cpu "$pid")
    echo "CPU time while connected and idle for $idle s (probe every 30 s):" \
        "$(awk -v d=$((t1 - t0)) 'BEGIN {printf "%.2f", d / 1e6}') ms"
fi
kill -TERM "$pid"
wait "$pid"
