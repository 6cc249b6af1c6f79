#!/usr/bin/env bash
# Builds the simulated modem, the command-line tool and the demo, and runs the
# demo session against the simulated modem: through its FUSE device node when
# /dev/fuse can be used, otherwise in-process.  Arguments go to the demo
# (for example --hex).  Installs what a fresh Debian machine lacks.
set -euo pipefail
cd "$(dirname "$0")/.."

need=()
command -v cmake >/dev/null || need+=(cmake)
command -v g++ >/dev/null || need+=(g++)
command -v pkg-config >/dev/null || need+=(pkg-config)
[ -f /usr/include/fuse3/fuse.h ] || need+=(libfuse3-dev)
command -v fusermount3 >/dev/null || need+=(fuse3)
if [ ${#need[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo=sudo
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq "${need[@]}"
fi

cmake -S . -B build/demo -DCMAKE_BUILD_TYPE=Release -DZOVQMI_BUILD_TESTS=OFF >/dev/null
cmake --build build/demo -j"$(nproc)" --target zovqmi-sim zovqmi-cli zovqmi-demo

demo=build/demo/examples/zovqmi-demo
sim=build/demo/sim/zovqmi-sim
if [ -r /dev/fuse ] && [ -w /dev/fuse ]; then
  dir=$(mktemp -d /tmp/zovqmi-sim.XXXXXX)
  log=$dir.log
  "$sim" --fuse "$dir" >"$log" 2>&1 &
  simpid=$!
  trap 'kill $simpid 2>/dev/null; wait $simpid 2>/dev/null || true; rmdir "$dir" 2>/dev/null || true; rm -f "$log"' EXIT
  device=""
  for _ in $(seq 100); do
    device=$(sed -n 's/^device: //p' "$log")
    [ -n "$device" ] && [ -e "$device" ] && break
    sleep 0.05
  done
  if [ -n "$device" ] && [ -e "$device" ]; then
    echo "simulated modem: $device"
    "$demo" --device "$device" "$@"
    exit $?
  fi
  echo "the FUSE device node did not come up; running the simulated modem in-process" >&2
fi
"$demo" "$@"
