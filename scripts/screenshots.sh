#!/bin/sh
# Renders every screen of the front end in every language and orientation,
# for a look at the whole interface at once.
#
# Usage: scripts/screenshots.sh OUTDIR
#
# Writes OUTDIR/<page>-<lang>-<orientation>.png, where <page> is "main",
# "menu" and every page name listed in qml/Public/Pages.qml (new pages are
# picked up from there), <lang> is cn, en or de and <orientation> is landscape
# (1920x1080) or portrait (1080x1920).
#
# It builds nothing: the executables must already be in build/ (or in
# $CS_BUILD_DIR). Each picture comes from one run of build/CSFrontEnd in a
# private sysroot made by scripts/prepare-sysroot.sh (deleted afterwards),
# against the media service simulator, under Xvfb with Qt Quick's software
# renderer. Language and rotation are set in the sysroot's CS_Config.ini
# before each run; the page is opened with CS_START_PAGE and saved with
# CS_SCREENSHOT. The two orientations run side by side, each with its own
# sysroot, simulator and Xvfb; the simulators get their own UDP ports and
# shared-memory keys, so the run does not disturb a simulator or test
# running beside it.
#
# Environment:
#   CS_BUILD_DIR        build folder (default build/ of this tree)
#   CS_SHOT_AFTER_MS    time from start to picture (default 2000)
#   CS_SIM_ARGS         extra simulator options, e.g. "--script busy.txt" to
#                       show streams, recording or an unplugged input
#   CS_SHOT_PAGES       only these screens, e.g. "main menu record"
#
# Exits non-zero with a message naming the picture when one was not written.
set -eu

top=$(cd "$(dirname "$0")/.." && pwd)
self="$top/scripts/screenshots.sh"
build="${CS_BUILD_DIR:-$top/build}"
after="${CS_SHOT_AFTER_MS:-2000}"

# Inner part, run once per orientation inside xvfb-run:
#   screenshots.sh --render ORIENTATION OUTDIR STOPFILE PAGE...
# It ends early when STOPFILE appears or on a signal; either way it returns
# to xvfb-run, which then stops its Xvfb.
if [ "${1:-}" = "--render" ]; then
    orientation="$2"; out="$3"; stop="$4"; shift 4
    ini="$CS_SYSROOT/usr/bin/config/CS_Config.ini"
    echo $$ > "$CS_SYSROOT/render.pid"
    app=""
    trap 'rm -f "$CS_SYSROOT/render.pid"' EXIT
    trap '[ -z "$app" ] || kill "$app" 2> /dev/null; exit 143' INT TERM
    case "$orientation" in landscape) rotation=0 ;; *) rotation=1 ;; esac
    for lang in cn en de; do
        case "$lang" in cn) code=0 ;; en) code=1 ;; de) code=2 ;; esac
        for page in "$@"; do
            [ ! -e "$stop" ] || exit 143
            # The settings file is rewritten by the application, so both keys
            # are set again before every run.
            sed -e '/^language=/d' -e '/^lcdRotation=/d' "$ini" > "$ini.new"
            printf 'language=%s\nlcdRotation=%s\n' "$code" "$rotation" >> "$ini.new"
            mv "$ini.new" "$ini"
            shot="$out/$page-$lang-$orientation.png"
            rm -f "$shot"
            log="$CS_SYSROOT/run-$page-$lang-$orientation.log"
            # In the background so that a signal reaches the trap at once.
            CS_START_PAGE="$page" CS_SCREENSHOT="$shot" CS_SCREENSHOT_AFTER_MS="$after" \
                CS_QUIT_AFTER_MS=$((after + 400)) \
                timeout 30 "$build/CSFrontEnd" > "$log" 2>&1 &
            app=$!
            wait "$app" || true
            app=""
            if [ ! -s "$shot" ]; then
                echo "screenshots: $shot was not written; the application said:" >&2
                tail -n 20 "$log" >&2
                exit 1
            fi
            echo "$shot"
        done
    done
    exit 0
fi

out="${1:-}"
[ -n "$out" ] || { echo "usage: $0 OUTDIR" >&2; exit 2; }
for exe in "$build/CSFrontEnd" "$build/sim/cs-mediasim"; do
    [ -x "$exe" ] || { echo "screenshots: $exe is missing; build CSFrontEnd and cs-mediasim first" >&2; exit 2; }
done
command -v xvfb-run > /dev/null || { echo "screenshots: xvfb-run is missing (Debian package xvfb)" >&2; exit 2; }
mkdir -p "$out"
out=$(cd "$out" && pwd)

# Page names as the registry lists them; only plain names make file names.
pages=$(sed -n 's/.*{ *name: *"\([A-Za-z0-9_-]*\)".*/\1/p' "$top/qml/Public/Pages.qml")
[ -n "$pages" ] || { echo "screenshots: no page names found in qml/Public/Pages.qml" >&2; exit 1; }
screens="${CS_SHOT_PAGES:-main menu $pages}"

work=$(mktemp -d "${TMPDIR:-/tmp}/cs-shots.XXXXXX")
stop="$work/stop"
jobs=""
# Interrupted: the stop file keeps each orientation from starting anything
# new, the signal ends the application being shown, and xvfb-run then stops
# its Xvfb; the simulators stop when their orientation is done.
# shellcheck disable=SC2317  # run by the trap
cleanup() {
    touch "$stop"
    for orientation in landscape portrait; do
        pid=$(cat "$work/$orientation/render.pid" 2> /dev/null) || continue
        # Only while it is still that loop: the file goes when the loop ends.
        if ps -o args= -p "$pid" 2> /dev/null | grep -q -e "--render $orientation"; then
            kill "$pid" 2> /dev/null || true
        fi
    done
    for job in $jobs; do
        wait "$job" 2> /dev/null || true
    done
    rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 130' INT TERM

export QT_QUICK_BACKEND=software
export CS_LISTEN_PORT=0
unset QT_QPA_PLATFORM
base=$(( $$ % 10000 * 2 ))

# One orientation: its own sysroot, simulator and Xvfb. The simulator's port
# and keys follow this process's id, away from the defaults a desktop run or
# a test uses.
#   render ORIENTATION SCREEN SLOT
render() {
    orientation="$1"; screen="$2"; slot=$(( base + $3 ))
    # Carries on when interrupted: the main part stops it through the stop file.
    trap ':' INT TERM
    CS_SYSROOT=$("$top/scripts/prepare-sysroot.sh" "$work/$orientation")
    export CS_SYSROOT
    export CS_MEDIA_PORT=$(( 30000 + slot ))
    export CS_PREVIEW_SHM_KEY=$(( 0x43530000 + slot ))
    export CS_PREVIEW_SEM_KEY=$(( 0x43540000 + slot ))
    export CS_AUDIO_SHM_KEY=$(( 0x43550000 + slot ))
    # shellcheck disable=SC2086  # options are split on purpose
    "$build/sim/cs-mediasim" --listen-port 0 ${CS_SIM_ARGS:-} --remove-ipc-on-exit > "$work/sim-$orientation.log" 2>&1 &
    sim=$!
    sleep 0.3
    rc=0
    if ! kill -0 "$sim" 2> /dev/null; then
        echo "screenshots: the simulator did not start:" >&2
        cat "$work/sim-$orientation.log" >&2
        rc=1
    elif [ ! -e "$stop" ]; then
        # shellcheck disable=SC2086  # one argument per page name
        xvfb-run -a -s "-screen 0 ${screen}x24" sh "$self" --render "$orientation" "$out" "$stop" $screens || rc=$?
    fi
    kill "$sim" 2> /dev/null || true
    wait "$sim" 2> /dev/null || true
    return "$rc"
}

(render landscape 1920x1080 0) &
jobs="$!"
# xvfb-run -a takes the first free display; a moment apart, the two cannot pick the same one.
sleep 1
(render portrait 1080x1920 1) &
jobs="$jobs $!"
status=0
for job in $jobs; do
    wait "$job" || status=1
done
exit "$status"
