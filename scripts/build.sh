#!/bin/sh
# Configures and builds everything (application, simulator, tests,
# benchmarks, fuzz replays) in ./build, or in $CS_BUILD_DIR.
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
build="${CS_BUILD_DIR:-$top/build}"
# ccache keeps rebuilds of unchanged sources cheap (CI, parallel build folders).
launcher=""
command -v ccache >/dev/null 2>&1 && launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
# A fresh clone elsewhere still hits the cache: paths are hashed relative to the tree.
export CCACHE_BASEDIR="$top" CCACHE_NOHASHDIR=1
cmake -S "$top" -B "$build" -DCMAKE_BUILD_TYPE="${CS_BUILD_TYPE:-RelWithDebInfo}" $launcher >/dev/null
cmake --build "$build" -j"${CS_JOBS:-2}"
