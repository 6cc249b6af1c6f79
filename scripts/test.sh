#!/usr/bin/env bash
# Builds the library and runs the whole test suite on this machine, installing
# the build tools a fresh Debian machine lacks.
set -euo pipefail
cd "$(dirname "$0")/.."

need=()
command -v cmake >/dev/null || need+=(cmake)
command -v g++ >/dev/null || need+=(g++)
command -v gcc >/dev/null || need+=(gcc)
[ -f /usr/include/gtest/gtest.h ] || need+=(libgtest-dev)
[ -d /usr/src/googletest ] || need+=(googletest)
if [ ${#need[@]} -gt 0 ]; then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq "${need[@]}"
fi

cmake --workflow --preset host --fresh
