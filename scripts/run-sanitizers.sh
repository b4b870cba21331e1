#!/bin/sh
# The test suite under the sanitizers, each kind in a build folder of its own.
#   sh scripts/run-sanitizers.sh            AddressSanitizer + UndefinedBehaviorSanitizer, every test
#   sh scripts/run-sanitizers.sh thread     ThreadSanitizer on the threaded parts: the link's
#                                           transport and command loops, the preview and audio
#                                           readers, the Bluetooth reader and the network
# Extra arguments go to ctest (e.g. -R tst_settings). Suppressions, with the
# reason for each, are in tests/lsan.supp and tests/tsan.supp.
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
kind=${1:-address}
[ $# -gt 0 ] && shift
case "$kind" in
  address)
    build="${CS_ASAN_BUILD_DIR:-$top/build-asan}"
    option=-DCS_SANITIZE=ON
    select="" ;;
  thread)
    build="${CS_TSAN_BUILD_DIR:-$top/build-tsan}"
    option=-DCS_SANITIZE_THREAD=ON
    select="tst_linktransport|tst_linkcommands|tst_preview_reader|tst_preview_display|tst_preview_audio|tst_bluetooth$|tst_network$" ;;
  *)
    echo "usage: $0 [address|thread] [ctest arguments]" >&2
    exit 2 ;;
esac
"$top/scripts/install-deps.sh"
launcher=""
command -v ccache >/dev/null 2>&1 && launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
# A fresh clone elsewhere still hits the cache: paths are hashed relative to the tree.
export CCACHE_BASEDIR="$top" CCACHE_NOHASHDIR=1
cmake -S "$top" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo $option -DCS_BUILD_BENCHMARKS=OFF $launcher >/dev/null
cmake --build "$build" -j"${CS_JOBS:-2}"
if [ -n "$select" ]; then
  ctest --test-dir "$build" -j2 --output-on-failure -R "$select" "$@"
else
  ctest --test-dir "$build" -j2 --output-on-failure "$@"
fi
