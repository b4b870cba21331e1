#!/bin/sh
# Configures and builds everything (application, simulator, tests,
# benchmarks, fuzz replays) in ./build, or in $CS_BUILD_DIR.
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
build="${CS_BUILD_DIR:-$top/build}"
cmake -S "$top" -B "$build" -DCMAKE_BUILD_TYPE="${CS_BUILD_TYPE:-RelWithDebInfo}" >/dev/null
cmake --build "$build" -j"${CS_JOBS:-2}"
