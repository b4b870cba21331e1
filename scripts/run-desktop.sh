#!/bin/sh
# Installs what is missing, builds, and runs the front end against the media
# service simulator in a private sysroot. Without a display it runs under
# Xvfb. Environment:
#   CS_RUN_DIR            sysroot to use (default ./.sysroot-desktop; kept between runs)
#   CS_SCREENSHOT=FILE    save a screenshot of the window after CS_SCREENSHOT_AFTER_MS (default 5000)
#   CS_QUIT_AFTER_MS=N    quit after N ms (unattended runs)
#   CS_SIM_ARGS="..."     extra simulator options (e.g. "--size 1920x1080 --fps 60 --script FILE")
#   CS_PHONE_ARGS="..."   options of the phone on /dev/rfcomm0 (default "--hold": answers only;
#                         e.g. "--send-after 10 --stop-after 60" hands over a destination, then stops)
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
"$top/scripts/install-deps.sh"
"$top/scripts/build.sh"
build="${CS_BUILD_DIR:-$top/build}"
export CS_SYSROOT="$("$top/scripts/prepare-sysroot.sh" "${CS_RUN_DIR:-$top/.sysroot-desktop}")"

# shellcheck disable=SC2086
"$build/sim/cs-mediasim" ${CS_SIM_ARGS:-} &
sim=$!
# The companion phone: a pseudo-terminal linked as the sysroot's /dev/rfcomm0.
# shellcheck disable=SC2086
"$build/sim/cs-phone" ${CS_PHONE_ARGS:---hold} </dev/null &
phone=$!
trap 'kill $sim $phone 2>/dev/null; wait $sim $phone 2>/dev/null || true' EXIT INT TERM

if [ -z "$DISPLAY" ] && [ -z "$WAYLAND_DISPLAY" ] && [ "${QT_QPA_PLATFORM:-}" != offscreen ]; then
  # Xvfb has no GPU: Qt Quick's software renderer shows more frames for less CPU than GL on llvmpipe.
  QT_QUICK_BACKEND="${QT_QUICK_BACKEND:-software}" xvfb-run -a -s "-screen 0 1920x1080x24" "$build/CSFrontEnd" "$@"
else
  "$build/CSFrontEnd" "$@"
fi
