#!/bin/sh
# Soak of the front end against a media service that keeps dying: the real
# application (its main screen, Qt Quick's software renderer, under Xvfb)
# runs against the simulator, which is killed with SIGKILL and started again
# RESTARTS times spread over MINUTES.
#
# Usage: scripts/soak-simulator.sh [MINUTES] [RESTARTS]   (defaults 5 and 20)
#
# Each cycle kills the simulator, leaves it down for a second and starts it
# again. The preview's return is measured from the moment the new simulator
# is up, that is when it prints that it has opened the preview buffer and
# started producing ("preview WxH at N fps into segment ...", time-stamped
# as it is printed), to the wall-clock time the main screen's preview puts a
# frame on screen (after the buffer swap), as printed by the probe document
# tests/soak/previewprobe.qml. The simulator's own start-up (process start
# to up) is shown beside it. At the end of each cycle, just before the next
# kill, it samples the application's VmRSS and open descriptors (the fewest
# of five looks 200 ms apart: child processes hold pipes for a moment).
#
# The first kill comes 35 s after the first frame: start-up work leaves an
# idle pool thread (with its descriptor) that Qt ends after 30 s.
#
# Pass: the application never exits; the preview is back within 1000 ms
# after every restart; the descriptor count after every restart equals the
# first restart's; RSS after every restart from the fourth on stays within
# 4 MiB (about one preview image) of the highest of the first three (the
# preview's image pool and the allocator settle during those).
#
# Builds nothing: CSFrontEnd and sim/cs-mediasim must be in build/ (or in
# $CS_BUILD_DIR). The sysroot, UDP port and shared-memory keys are the
# soak's own. CS_SIM_ARGS adds simulator options; CS_SOAK_KEEP=1 keeps the
# logs even when the soak passes. Exits 0 on pass, 1 on fail, 2 on bad use.
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
minutes="${1:-5}"
restarts="${2:-20}"
case "$minutes$restarts" in *[!0-9]*) echo "usage: $0 [MINUTES] [RESTARTS]" >&2; exit 2 ;; esac
[ "$minutes" -gt 0 ] && [ "$restarts" -gt 0 ] || { echo "usage: $0 [MINUTES] [RESTARTS] (both above 0)" >&2; exit 2; }

. "$top/tests/soak/common.sh"
soak_require Xvfb ipcrm

limit_ms=1000
down_ms=1000
rss_slack_kib=$((4 * 1024))
settle_ms=35000
period_ms=$(( minutes * 60000 / restarts ))
[ "$period_ms" -ge $(( down_ms + 3000 )) ] || { echo "soak: $restarts restarts do not fit in $minutes minutes (at least 4 s each)" >&2; exit 2; }

soak_setup
soak_start_display 1920x1080
soak_start_sim
soak_start_app "$top/tests/soak/previewprobe.qml"
log="$soak_work/app.log"

# The first probe line at or after $1 (ms since the epoch); empty if none.
frame_after() {
    awk -v t="$1" '$0 ~ /PROBE frame-after-pause / {
        for (i = 1; i < NF; i++) if ($i == "frame-after-pause" && $(i + 1) + 0 >= t) { print $(i + 1); exit }
    }' "$log"
}

# When the simulator started at or after $1 said it was up; empty if not yet.
sim_up_after() {
    awk -v t="$1" '$1 + 0 >= t && / into segment / { print $1; exit }' "$soak_work/sim.log"
}

fail() {
    echo "soak: $*" >&2
    soak_failed=1
}

echo "soak: $minutes min, $restarts restarts, one every $((period_ms / 1000)) s, after $((settle_ms / 1000)) s of start-up; logs in $soak_work"
soak_wait_ready '[ -n "$(frame_after 0)" ]' "no preview frame"

soak_sleep_ms "$settle_ms"
printf '%7s  %15s  %22s  %7s  %4s\n' restart "sim up after ms" "preview back after ms" "RSS MiB" fds
rows=""
first_fds=""
base_kib=0
late=0
i=1
while [ "$i" -le "$restarts" ]; do
    cycle=$(soak_now_ms)
    kill -KILL "$soak_sim" 2> /dev/null || true
    wait "$soak_sim" 2> /dev/null || true
    soak_sleep_ms "$down_ms"
    start=$(soak_now_ms)
    soak_start_sim
    up=""
    back=""
    while soak_app_alive && [ $(( $(soak_now_ms) - start )) -lt 10000 ]; do
        [ -n "$up" ] || up=$(sim_up_after "$start")
        if [ -n "$up" ]; then
            back=$(frame_after "$up")
            [ -z "$back" ] || break
        fi
        sleep 0.02
    done
    soak_sleep_ms $(( cycle + period_ms - $(soak_now_ms) ))
    if ! soak_app_alive; then
        fail "the application exited during cycle $i"
        break
    fi
    rss=$(soak_rss_kib)
    fds=$(soak_fds "$soak_work/fds-$i.txt")
    if [ -n "$up" ]; then started_after=$(( up - start )); else started_after="none"; fi
    if [ -n "$back" ]; then after=$(( back - up )); else after="none"; fi
    printf '%7d  %15s  %22s  %7s  %4d\n' "$i" "$started_after" "$after" "$(soak_mib "$rss")" "$fds"
    rows="$rows $after"
    if [ "$after" = none ] || [ "$after" -gt "$limit_ms" ]; then
        late=$((late + 1))
    fi
    [ -n "$first_fds" ] || first_fds=$fds
    [ "$fds" -eq "$first_fds" ] || fail "restart $i: $fds descriptors open, $first_fds after the first restart"
    if [ "$i" -le 3 ]; then
        [ "$rss" -le "$base_kib" ] || base_kib=$rss
    elif [ "$rss" -gt $(( base_kib + rss_slack_kib )) ]; then
        fail "restart $i: RSS $(soak_mib "$rss") MiB, more than 4 MiB above $(soak_mib "$base_kib") MiB (the highest of restarts 1-3)"
    fi
    i=$((i + 1))
done

soak_app_alive || fail "the application is not running at the end"
# shellcheck disable=SC2086  # one value per restart
summary=$(printf '%s\n' $rows | awk '$1 != "none" { n++; s += $1; if ($1 > m) m = $1 } END { if (n) printf "mean %d ms, worst %d ms over %d restarts", s / n, m, n; else print "no restart measured" }')
echo "preview back after the simulator was up: $summary; RSS limit $(soak_mib $(( base_kib + rss_slack_kib ))) MiB"
echo "buffer handed back after a simulator killed mid-frame: $(grep -c 'ended while writing a frame' "$log" || true) time(s)"
[ "$late" -eq 0 ] || fail "$late restart(s) without a preview frame within $limit_ms ms"
if [ "$soak_failed" -eq 0 ]; then
    echo "verdict: PASS"
else
    echo "verdict: FAIL"
    exit 1
fi
