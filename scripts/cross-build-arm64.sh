#!/bin/sh
# Builds the application, the simulator and the tests for the device
# (64-bit ARM Linux) on a Debian 12 machine of another architecture, and
# runs the tests that need nothing of the build machine under qemu user
# emulation. Installs what is missing first (Debian multiarch: arm64 Qt 5
# and FFmpeg development packages, the aarch64 cross compiler, qemu).
#
#   sh scripts/cross-build-arm64.sh            build, then run the emulated tests
#   sh scripts/cross-build-arm64.sh --all      also build benchmarks, fuzz replays
#                                              and every other test
#   sh scripts/cross-build-arm64.sh --no-tests build only
#
# Output in ./build-arm64 (or $CS_BUILD_DIR); CS_BUILD_TYPE and CS_JOBS as
# for scripts/build.sh. Extra arguments after the options go to ctest.
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
build="${CS_BUILD_DIR:-$top/build-arm64}"
all=0
tests=1
while [ $# -gt 0 ]; do
  case "$1" in
    --all) all=1 ;;
    --no-tests) tests=0 ;;
    *) break ;;
  esac
  shift
done

if [ "$(id -u)" -ne 0 ]; then SUDO=sudo; else SUDO=; fi

# Build-machine tools: the Qt code generators and lrelease run here.
HOST_PACKAGES="cmake make pkg-config ccache file
qtbase5-dev-tools qtdeclarative5-dev-tools qttools5-dev qttools5-dev-tools
g++-aarch64-linux-gnu qemu-user"
TARGET_PACKAGES="libc6-dev:arm64 qtbase5-dev:arm64 qtdeclarative5-dev:arm64
qtquickcontrols2-5-dev:arm64 qtmultimedia5-dev:arm64
libavformat-dev:arm64 libavcodec-dev:arm64 libavutil-dev:arm64"
missing=""
for p in $HOST_PACKAGES $TARGET_PACKAGES; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
done
if [ -n "$missing" ]; then
  echo "installing:$missing"
  dpkg --print-foreign-architectures | grep -qx arm64 || $SUDO dpkg --add-architecture arm64
  $SUDO apt-get update -qq
  # The arm64 libraries must carry the same versions as the installed
  # amd64 ones; apt upgrades those where needed and removes nothing here.
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends --no-remove $missing >/dev/null
fi

# ccache with paths relative to the checkout, so a fresh clone elsewhere
# (CI) reuses what an earlier build compiled.
launcher=""
if command -v ccache >/dev/null 2>&1; then
  launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
  export CCACHE_BASEDIR="$top"
fi
cmake -S "$top" -B "$build" -DCMAKE_TOOLCHAIN_FILE="$top/cmake/aarch64-linux-gnu.cmake" \
  -DCMAKE_BUILD_TYPE="${CS_BUILD_TYPE:-RelWithDebInfo}" -DCMAKE_CXX_FLAGS="-fdebug-prefix-map=$top=." \
  $launcher >/dev/null

# Tests run under emulation (programs of the build machine such as sh and
# cp start normally). Left to the native run: tests that start a second
# process of their own (that needs binfmt_misc), use strace or network
# namespaces, or draw QML windows.
EMULATED="tst_protocolframe tst_settings tst_platform
tst_linkcommands tst_linktransport tst_linkintake tst_reportlink
tst_reportdispatch tst_formatlists
tst_preview_reader tst_preview_convert
tst_streaming tst_network tst_record tst_upgrade tst_hardware
tst_simdevice tst_simmedia fuzz_blocks_replay fuzz_frames_replay"

if [ "$all" = 1 ]; then
  cmake --build "$build" -j"${CS_JOBS:-2}"
else
  targets="CSFrontEnd cs-mediasim cs-phone"
  [ "$tests" = 1 ] && targets="$targets $(echo $EMULATED | sed 's/_replay//g')"
  cmake --build "$build" -j"${CS_JOBS:-2}" --target $targets
fi
file "$build/CSFrontEnd" "$build/sim/cs-mediasim"

[ "$tests" = 1 ] || exit 0
# One group only: CMake's regular expressions allow few parentheses.
regex=$(echo $EMULATED | tr ' ' '|')
ctest --test-dir "$build" -j2 --output-on-failure --no-tests=error -R "^($regex)\$" "$@"
