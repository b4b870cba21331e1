#!/bin/sh
# Builds the fuzz targets against libFuzzer (clang, AddressSanitizer and
# UndefinedBehaviorSanitizer over the whole product) and runs them.
#   sh scripts/fuzz.sh [seconds] [target...]
# seconds: the time limit per target (default 600); targets: area names
# under fuzz/ (formatlists, route, ...), all by default. Each target runs on
# a scratch copy of its seed corpus, so the committed corpus never changes.
# Prints a table (executions, exec/s, libFuzzer's final cov: and ft:,
# result); a crash leaves its reproducer path printed and the exit status
# non-zero. CS_FUZZ_BUILD_DIR chooses the build folder.
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
seconds=${1:-600}
[ $# -gt 0 ] && shift
build="${CS_FUZZ_BUILD_DIR:-$top/build-fuzz}"

if ! command -v clang++ >/dev/null 2>&1; then
  echo "installing clang"
  if [ "$(id -u)" -ne 0 ]; then SUDO=sudo; else SUDO=; fi
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends clang >/dev/null
fi

if [ $# -gt 0 ]; then
  areas="$*"
else
  areas=""
  for f in "$top"/fuzz/*/CMakeLists.txt; do
    areas="$areas $(basename "$(dirname "$f")")"
  done
fi
for a in $areas; do
  [ -f "$top/fuzz/$a/CMakeLists.txt" ] || { echo "no fuzz target $a" >&2; exit 2; }
done

launcher=""
command -v ccache >/dev/null 2>&1 && launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
CC=clang CXX=clang++ cmake -S "$top" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCS_FUZZ=ON \
  -DCS_BUILD_BENCHMARKS=OFF $launcher >/dev/null
targets=""
for a in $areas; do targets="$targets fuzz_$a"; done
# shellcheck disable=SC2086
cmake --build "$build" -j"${CS_JOBS:-2}" --target $targets

scratch=$(mktemp -d "${TMPDIR:-/tmp}/cs-fuzz.XXXXXX")
# The targets' sysroots (temporary folders) on tmpfs where there is one:
# settings and event files are saved with fsync, ten times slower on disk.
sysroots=${TMPDIR:-/tmp}
[ -d /dev/shm ] && [ -w /dev/shm ] && sysroots=/dev/shm
failed=0
table="target executions exec/s cov ft seconds result"
for a in $areas; do
  work="$scratch/$a"
  mkdir -p "$work/corpus" "$work/artifacts"
  cp "$top/fuzz/$a/corpus/"* "$work/corpus/" 2>/dev/null || true
  # A target may ask for more (fuzz/<area>/fuzz.options: one line of flags).
  extra=""
  [ -f "$top/fuzz/$a/fuzz.options" ] && extra=$(cat "$top/fuzz/$a/fuzz.options")
  echo "== fuzz_$a: up to $seconds s or 1000000 runs"
  start=$(date +%s)
  set +e
  # shellcheck disable=SC2086
  (cd "$work" && TMPDIR="$sysroots" QT_QPA_PLATFORM=offscreen TZ=UTC \
    ASAN_OPTIONS="abort_on_error=1" UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1" \
    "$build/fuzz/$a/fuzz_$a" -max_total_time="$seconds" -runs=1000000 -timeout=5 -rss_limit_mb=2048 \
    -print_final_stats=1 -artifact_prefix="$work/artifacts/" $extra corpus) >"$work/log" 2>&1
  rc=$?
  set -e
  took=$(( $(date +%s) - start ))
  # Byte-wise: libFuzzer's status lines may quote any bytes of an input.
  runs=$(LC_ALL=C sed -n 's/^stat::number_of_executed_units: *//p' "$work/log" | tail -1)
  speed=$(LC_ALL=C sed -n 's/^stat::average_exec_per_sec: *//p' "$work/log" | tail -1)
  last=$(LC_ALL=C grep -aE '^#[0-9]+.* cov: ' "$work/log" | tail -1)
  cov=$(echo "$last" | LC_ALL=C awk '{ for (i = 1; i < NF; ++i) if ($i == "cov:") { print $(i + 1); exit } }')
  ft=$(echo "$last" | LC_ALL=C awk '{ for (i = 1; i < NF; ++i) if ($i == "ft:") { print $(i + 1); exit } }')
  if [ $rc -eq 0 ]; then
    result=ok
  else
    failed=1
    crash=$(ls "$work/artifacts/"* 2>/dev/null | head -1)
    result="FAILED(${crash:-see $work/log})"
    tail -40 "$work/log"
    echo "reproducer: ${crash:-none} (log: $work/log)"
  fi
  table="$table
fuzz_$a ${runs:-?} ${speed:-?} ${cov:-?} ${ft:-?} $took $result"
done
echo
echo "$table" | column -t
echo "logs and scratch corpora: $scratch"
exit $failed
