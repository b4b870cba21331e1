#!/bin/sh
# Soak of the front end under random touches: the real application against
# the simulator under Xvfb, driven with xdotool for MINUTES.
#
# Usage: scripts/touch-soak.sh [MINUTES] [landscape|portrait]   (defaults 10, landscape)
#
# Random taps, short drags and long presses land anywhere in the window, a
# few a second. Every 5 s the script walks to the next page of a shuffled
# round of all pages (qml/Public/Pages.qml) by touch: Close, then the Menu and
# the page's tile, or the Stream and Record actions, and Stream's links to
# Events and Addresses. Where those controls are, and which page is showing,
# comes from the probe document tests/soak/touchprobe.qml, which runs the
# real main window and prints it. RSS is sampled every 30 s.
#
# Pass: the application never exits; every page was shown at least once; no
# warning storm in the application's output, that is no warning text more
# than 10 times and no minute with more than 20 warnings; RSS at the end at
# most 16 MiB above the sample at minute 2 (pages are made the first time
# they open, so the first round of pages is over by then).
#
# Prints the touches, the pages visited, every warning text with its count
# (QML ones marked), RSS first/at minute 2/last/max and the verdict. Builds
# nothing: CSFrontEnd and sim/cs-mediasim must be in build/ (or in
# $CS_BUILD_DIR). CS_SOAK_SEED repeats a run's touches; CS_SOAK_KEEP=1 keeps
# the logs even when the soak passes. Exits 0 on pass, 1 on fail, 2 on bad use.
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
minutes="${1:-10}"
orientation="${2:-landscape}"
case "$minutes" in ''|*[!0-9]*) echo "usage: $0 [MINUTES] [landscape|portrait]" >&2; exit 2 ;; esac
[ "$minutes" -ge 3 ] || { echo "touch-soak: at least 3 minutes (RSS is compared from minute 2 on)" >&2; exit 2; }
case "$orientation" in
    landscape) screen=1920x1080; rotation=0 ;;
    portrait) screen=1080x1920; rotation=1 ;;
    *) echo "usage: $0 [MINUTES] [landscape|portrait]" >&2; exit 2 ;;
esac
seed="${CS_SOAK_SEED:-$(od -An -N2 -tu2 /dev/urandom | tr -d ' ')}"
case "$seed" in ''|*[!0-9]*) echo "touch-soak: CS_SOAK_SEED must be a number" >&2; exit 2 ;; esac

. "$top/tests/soak/common.sh"
soak_require Xvfb xdotool ipcrm

same_limit=10
minute_limit=20
rss_slack_kib=$((16 * 1024))
nav_ms=5000
sample_ms=30000
pages=$(sed -n 's/.*{ *name: *"\([A-Za-z0-9_-]*\)".*/\1/p' "$top/qml/Public/Pages.qml")
[ -n "$pages" ] || { echo "touch-soak: no page names found in qml/Public/Pages.qml" >&2; exit 1; }

soak_setup
ini="$CS_SYSROOT/usr/bin/config/CS_Config.ini"
sed -e '/^lcdRotation=/d' "$ini" > "$ini.new"
echo "lcdRotation=$rotation" >> "$ini.new"
mv "$ini.new" "$ini"
# Each line with the time since start and its type, so warnings can be
# counted per text and per minute.
export QT_MESSAGE_PATTERN='%{time process} %{type} %{if-category}%{category}: %{endif}%{message}'
mkdir -p "$soak_work/runtime"
chmod 700 "$soak_work/runtime"
export XDG_RUNTIME_DIR="$soak_work/runtime"
soak_start_display "$screen"
soak_start_sim
soak_start_app "$top/tests/soak/touchprobe.qml"
log="$soak_work/app.log"

fail() {
    echo "touch-soak: $*" >&2
    soak_failed=1
}

lines() { wc -l < "$log"; }
# The page of the last report ("main": none open).
page_now() { awk '/PROBE spots-end / { p = $NF } END { print p }' "$log"; }
# "X Y" of a control in the last report; empty when it was not on screen.
spot() {
    awk -v n="$1" '
        / PROBE spot / { for (i = 1; i < NF; i++) if ($i == "spot") { if ($(i + 1) == n) cur = $(i + 2) " " $(i + 3); break } }
        / PROBE spots-end / { last = cur; cur = "" }
        END { print last }' "$log"
}
# "X Y WIDTH HEIGHT" of the window on the screen, from the last report.
window_geometry() { awk '/PROBE window / { g = $(NF - 3) " " $(NF - 2) " " $(NF - 1) " " $NF } END { print g }' "$log"; }
# Waits up to 3 s for a report of a page matching $2 after line $1.
await_report() {
    n=0
    while [ $n -lt 30 ]; do
        tail -n +"$(( $1 + 1 ))" "$log" | grep -Eq "PROBE spots-end ($2)\$" && return 0
        sleep 0.1
        n=$((n + 1))
    done
    return 1
}
# Taps control $1 of the last report and waits for page $2.
go() {
    xy=$(spot "$1")
    [ -n "$xy" ] || return 1
    mark=$(lines)
    # shellcheck disable=SC2086  # X and Y
    xdotool mousemove $xy click 1
    nav_taps=$((nav_taps + 1))
    await_report "$mark" "$2"
}
# Walks to page $1 by touch; non-zero when it did not get there.
navigate() {
    # A question a random touch left open is declined first.
    if [ -n "$(spot confirmCancel)" ]; then go confirmCancel '[a-z]+' || true; fi
    if [ "$(page_now)" != main ]; then go pageClose main || return 1; fi
    case "$1" in
        stream) go streamButton stream ;;
        # While recording, the action asks to stop first.
        record) go recordButton record || { [ -n "$(spot confirmAction)" ] && go confirmAction main && go recordButton record; } ;;
        events) go streamButton stream && go streamToEvents events ;;
        platforms) go streamButton stream && go streamToPlatforms platforms ;;
        *) go menuButton menu && go "menu_$1" "$1" ;;
    esac
}

# The touches, from the seed: kind, start and end in ten-thousandths of
# the window's width and height, how long a long press holds (ms) and the
# pause after the touch (ms).
plan="$soak_work/plan"
awk -v seed="$seed" -v n=$(( minutes * 60 * 10 )) 'BEGIN {
    srand(seed)
    for (i = 0; i < n; i++) {
        r = rand(); x = int(rand() * 10000); y = int(rand() * 10000)
        kind = r < 0.6 ? "tap" : r < 0.85 ? "drag" : "press"
        x2 = x + int((rand() - 0.5) * 3000); y2 = y + int((rand() - 0.5) * 3000)
        x2 = x2 < 0 ? 0 : x2 > 9999 ? 9999 : x2; y2 = y2 < 0 ? 0 : y2 > 9999 ? 9999 : y2
        printf "%s %d %d %d %d %d %d\n", kind, x, y, x2, y2, 600 + int(rand() * 800), 100 + int(rand() * 300)
    }
}' > "$plan"

echo "touch-soak: $minutes min, $orientation, seed $seed; logs in $soak_work"
soak_wait_ready "grep -q 'PROBE spots-end' \"\$log\"" "the main screen did not come up"

start=$(soak_now_ms)
end=$(( start + minutes * 60000 ))
next_nav=$start
next_sample=$start
touches=0
nav_taps=0
navs=0
nav_failed=0
queue=""
round=0
rss_samples=""
while read -r kind fx fy fx2 fy2 hold gap; do
    now=$(soak_now_ms)
    [ "$now" -lt "$end" ] || break
    if ! soak_app_alive; then
        fail "the application exited after $(( (now - start) / 1000 )) s"
        break
    fi
    if [ "$now" -ge "$next_sample" ]; then
        rss_samples="$rss_samples $(( (now - start) / 1000 )):$(soak_rss_kib)"
        next_sample=$(( next_sample + sample_ms ))
    fi
    if [ "$now" -ge "$next_nav" ]; then
        if [ -z "$queue" ]; then
            round=$((round + 1))
            # shellcheck disable=SC2086  # one name per line
            queue=$(printf '%s\n' $pages | awk -v s=$(( seed + round )) 'BEGIN { srand(s) } { print rand(), $0 }' | sort -n | cut -d' ' -f2 | tr '\n' ' ')
        fi
        # shellcheck disable=SC2086  # the queue's words
        set -- $queue
        target=$1
        shift
        navs=$((navs + 1))
        # A page not reached goes to the back of the queue, so it is tried again.
        if navigate "$target"; then queue="$*"; else nav_failed=$((nav_failed + 1)); queue="$* $target"; fi
        next_nav=$(( $(soak_now_ms) + nav_ms ))
        geometry=$(window_geometry)
    fi
    # shellcheck disable=SC2086  # X0 Y0 W H of the window
    set -- $geometry
    x=$(( $1 + fx * $3 / 10000 )); y=$(( $2 + fy * $4 / 10000 ))
    x2=$(( $1 + fx2 * $3 / 10000 )); y2=$(( $2 + fy2 * $4 / 10000 ))
    case "$kind" in
        tap) xdotool mousemove "$x" "$y" click 1 ;;
        drag) xdotool mousemove "$x" "$y" mousedown 1 sleep 0.05 mousemove $(( (x + x2) / 2 )) $(( (y + y2) / 2 )) \
                  sleep 0.05 mousemove "$x2" "$y2" sleep 0.05 mouseup 1 ;;
        press) xdotool mousemove "$x" "$y" mousedown 1 sleep "$(( hold / 1000 )).$(printf '%03d' $(( hold % 1000 )))" mouseup 1 ;;
    esac
    touches=$((touches + 1))
    soak_sleep_ms "$gap"
done < "$plan"
soak_app_alive || fail "the application is not running at the end"
rss_samples="$rss_samples $(( ($(soak_now_ms) - start) / 1000 )):$(soak_rss_kib)"

# Pages shown, by the probe's word.
visited=$(awk '/PROBE page / { print $NF }' "$log" | sort -u)
missing=""
for p in $pages; do
    printf '%s\n' "$visited" | grep -qx "$p" || missing="$missing $p"
done
count=$(echo "$pages" | wc -w)
seen=$(( count - $(echo "$missing" | wc -w) ))
echo "touches: $touches random, $nav_taps on the way to pages ($navs walks, $nav_failed did not arrive)"
echo "pages visited: $seen of $count$([ -z "$missing" ] || echo ", never:$missing")"
for p in $pages; do printf '%s %s\n' "$p" "$(grep -c "PROBE page $p\$" "$log")"; done | awk '{ printf "  %s %d", $1, $2 } END { print "" }'

# Warnings: "<seconds> warning|critical|fatal <text>".
warnings="$soak_work/warnings"
awk '$2 ~ /^(warning|critical|fatal)$/ { t = $1; $1 = ""; $2 = ""; sub(/^  /, ""); print int(t / 60), $0 }' "$log" > "$warnings"
total=$(wc -l < "$warnings")
echo "warnings: $total"
cut -d' ' -f2- "$warnings" | sort | uniq -c | sort -rn | while read -r n text; do
    case "$text" in *.qml:*|*qml:*) mark="QML" ;; *) mark="   " ;; esac
    printf '  %5d %s %s\n' "$n" "$mark" "$text"
done
worst_same=$(cut -d' ' -f2- "$warnings" | sort | uniq -c | sort -rn | awk 'NR == 1 { print $1 } END { if (NR == 0) print 0 }')
worst_minute=$(cut -d' ' -f1 "$warnings" | sort | uniq -c | sort -rn | awk 'NR == 1 { print $1 } END { if (NR == 0) print 0 }')
[ "$worst_same" -le "$same_limit" ] || fail "warning storm: one text $worst_same times (limit $same_limit)"
[ "$worst_minute" -le "$minute_limit" ] || fail "warning storm: $worst_minute warnings in one minute (limit $minute_limit)"
[ -z "$missing" ] || fail "pages never shown:$missing"

# RSS: first sample, the one at minute 2, the last, the highest.
# shellcheck disable=SC2086  # one sample per word
printf '%s\n' $rss_samples | awk -F: -v slack="$rss_slack_kib" '
    { t[NR] = $1; k[NR] = $2; if ($2 > max) max = $2; if (!at2 && $1 >= 120) at2 = $2 }
    END {
        printf "RSS MiB: first %.1f, minute 2 %.1f, last %.1f, max %.1f (%d samples)\n", k[1] / 1024, at2 / 1024, k[NR] / 1024, max / 1024, NR
        printf "RSS samples (s:MiB):"
        for (i = 1; i <= NR; i++) printf " %d:%.1f", t[i], k[i] / 1024
        printf "\n"
        printf "RSS growth from minute 2: %+.1f MiB (limit %+.1f)\n", (k[NR] - at2) / 1024, slack / 1024
        exit (k[NR] - at2 > slack) ? 1 : 0
    }' || fail "RSS grew more than $((rss_slack_kib / 1024)) MiB after minute 2"

if [ "$soak_failed" -eq 0 ]; then
    echo "verdict: PASS"
else
    echo "verdict: FAIL"
    exit 1
fi
