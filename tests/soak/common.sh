# Shared by scripts/soak-simulator.sh and scripts/touch-soak.sh (sourced, POSIX
# sh): a scratch sysroot, a UDP port and shared-memory keys of the soak's own,
# an Xvfb, the simulator and the application, and samples of the
# application's memory and descriptors. Expects $top (the source tree).
build="${CS_BUILD_DIR:-$top/build}"
export QT_QUICK_BACKEND=software
export CS_LISTEN_PORT=0
# Info and warnings only: the per-datagram debug lines would bury a soak's log.
export QT_LOGGING_RULES="${QT_LOGGING_RULES:-cs.*.debug=false}"
unset QT_QPA_PLATFORM

soak_work=""
soak_sim=""
soak_app=""
soak_xvfb=""
soak_stamper=""
soak_failed=0

soak_now_ms() { date +%s%3N; }

# Sleeps for $1 milliseconds (fractions of a second are fine for GNU sleep).
soak_sleep_ms() {
    [ "$1" -gt 0 ] 2> /dev/null || return 0
    sleep "$(awk -v ms="$1" 'BEGIN { printf "%.3f", ms / 1000 }')"
}

soak_require() {
    for exe in "$build/CSFrontEnd" "$build/sim/cs-mediasim"; do
        [ -x "$exe" ] || { echo "soak: $exe is missing; build CSFrontEnd and cs-mediasim first" >&2; exit 2; }
    done
    for tool in "$@"; do
        command -v "$tool" > /dev/null || { echo "soak: $tool is missing (scripts/install-deps.sh installs it)" >&2; exit 2; }
    done
}

# The first UDP port from $1 up that nobody has bound.
soak_free_udp_port() {
    port=$1
    while [ -n "$(ss -Hlun "sport = :$port" 2> /dev/null)" ]; do port=$((port + 1)); done
    echo "$port"
}

# Scratch folder, sysroot, port and keys. The keys follow this process's id
# and sit away from the defaults, the tests' and the screenshot run's, so a
# soak disturbs nothing running beside it.
soak_setup() {
    soak_work=$(mktemp -d "${TMPDIR:-/tmp}/cs-soak.XXXXXX")
    CS_SYSROOT=$("$top/scripts/prepare-sysroot.sh" "$soak_work/sysroot")
    export CS_SYSROOT
    slot=$(( $$ % 4000 ))
    CS_MEDIA_PORT=$(soak_free_udp_port $(( 46000 + slot )))
    export CS_MEDIA_PORT
    export CS_PREVIEW_SHM_KEY=$(( 0x536b0000 + slot * 4 ))
    export CS_PREVIEW_SEM_KEY=$(( 0x536b0001 + slot * 4 ))
    export CS_AUDIO_SHM_KEY=$(( 0x536b0002 + slot * 4 ))
    trap soak_cleanup EXIT
    trap 'exit 130' INT TERM
}

# Stops what the soak started, removes the shared memory a killed simulator
# left behind, and keeps the folder (logs) only when the soak failed.
soak_cleanup() {
    for pid in $soak_app $soak_sim $soak_stamper $soak_xvfb; do
        kill "$pid" 2> /dev/null || true
    done
    for pid in $soak_app $soak_sim $soak_stamper $soak_xvfb; do
        wait "$pid" 2> /dev/null || true
    done
    ipcrm -M "$CS_PREVIEW_SHM_KEY" 2> /dev/null || true
    ipcrm -M "$CS_AUDIO_SHM_KEY" 2> /dev/null || true
    ipcrm -S "$CS_PREVIEW_SEM_KEY" 2> /dev/null || true
    if [ -n "$soak_work" ]; then
        if [ "$soak_failed" -ne 0 ] || [ -n "${CS_SOAK_KEEP:-}" ]; then
            echo "soak: logs kept in $soak_work (app.log, sim.log)"
        else
            rm -rf "$soak_work"
        fi
    fi
}

# An X server of the given size (WxH) on a free display of its own choosing.
soak_start_display() {
    rm -f "$soak_work/display"
    Xvfb -displayfd 3 -nolisten tcp -screen 0 "${1}x24" 3> "$soak_work/display" > "$soak_work/xvfb.log" 2>&1 &
    soak_xvfb=$!
    waited=0
    while [ ! -s "$soak_work/display" ]; do
        kill -0 "$soak_xvfb" 2> /dev/null && [ $waited -lt 100 ] || { echo "soak: Xvfb did not start:" >&2; cat "$soak_work/xvfb.log" >&2; exit 1; }
        sleep 0.1
        waited=$((waited + 1))
    done
    DISPLAY=":$(head -n 1 "$soak_work/display")"
    export DISPLAY
}

# (Re)starts the simulator. Its output goes to sim.log, each line headed by
# the wall-clock time in ms it was printed at (the simulator's own lines have
# no time).
soak_start_sim() {
    fifo="$soak_work/sim.fifo"
    [ -p "$fifo" ] || mkfifo "$fifo"
    # Ends by itself when the simulator's end of the pipe closes.
    while IFS= read -r line; do echo "$(date +%s%3N) $line"; done < "$fifo" >> "$soak_work/sim.log" &
    soak_stamper=$!
    # shellcheck disable=SC2086  # options are split on purpose
    "$build/sim/cs-mediasim" --listen-port 0 ${CS_SIM_ARGS:-} > "$fifo" 2>&1 &
    soak_sim=$!
}

# The application with the given main document (empty: its own).
soak_start_app() {
    if [ -n "$1" ]; then
        CS_MAIN_QML="$1" "$build/CSFrontEnd" > "$soak_work/app.log" 2>&1 &
    else
        "$build/CSFrontEnd" > "$soak_work/app.log" 2>&1 &
    fi
    soak_app=$!
}

soak_app_alive() { kill -0 "$soak_app" 2> /dev/null; }

# Waits until the shell condition $1 holds. If the application dies, a probe
# reports an error in $log, or 60 s pass, says $2 with the log's tail and exits.
soak_wait_ready() {
    waited_from=$(soak_now_ms)
    until eval "$1"; do
        if ! soak_app_alive || [ $(( $(soak_now_ms) - waited_from )) -gt 60000 ] || grep -q 'PROBE error' "$log"; then
            fail "$2 within 60 s; the application said:"
            tail -n 30 "$log" >&2
            exit 1
        fi
        sleep 0.2
    done
}

# Resident memory of the application in KiB, and its open descriptors.
soak_rss_kib() { awk '/^VmRSS:/ { print $2 }' "/proc/$soak_app/status" 2> /dev/null; }
# Descriptors: the fewest of ten looks 100 ms apart, since a child process
# the application runs (the monitor check, five a second) holds a few pipes
# for a moment. What the fewest were is kept in $1 when given.
soak_fds() {
    least=""
    for look in 1 2 3 4 5 6 7 8 9 10; do
        n=$(find "/proc/$soak_app/fd" -mindepth 1 -maxdepth 1 2> /dev/null | wc -l)
        if [ -z "$least" ] || [ "$n" -lt "$least" ]; then
            least=$n
            [ -z "${1:-}" ] || { find "/proc/$soak_app/fd" -mindepth 1 -maxdepth 1 -printf '%f %l\n'
                cat /proc/"$soak_app"/task/*/comm; } > "$1" 2> /dev/null || true
        fi
        [ "$look" -eq 10 ] || sleep 0.1
    done
    echo "$least"
}
soak_mib() { awk -v k="$1" 'BEGIN { printf "%.1f", k / 1024 }'; }
