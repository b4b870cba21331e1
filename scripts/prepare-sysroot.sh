#!/bin/sh
# Prepares a desktop sysroot: the template (stand-ins for every program that
# would change the machine, fake sysfs nodes), the factory settings and a
# USB disk holding rtmp.ini, two upgrade images and a short MP4 recording.
# Usage: prepare-sysroot.sh DIR   (an existing DIR keeps its settings and log)
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
dir="$1"
[ -n "$dir" ] || { echo "usage: $0 DIR" >&2; exit 2; }
mkdir -p "$dir"
cp -a "$top/sysroot-template/." "$dir/"
mkdir -p "$dir/usr/bin/config"
[ -f "$dir/usr/bin/config/CS_Config.ini" ] || cp "$top/config/CS_Config.ini" "$dir/usr/bin/config/"

# A USB disk is present when this node exists.
mkdir -p "$dir/sys/bus/usb/devices/1-1" "$dir/media/usb0"
cat > "$dir/media/usb0/rtmp.ini" <<'URLS'
rtmp://a.rtmp.youtube.com/live2/demo-key-1
rtmps://live-api-s.facebook.com:443/rtmp/demo-key-2
rtmp://live.twitch.tv/app/demo-key-3
URLS
for img in ZORVANE_RELEASE_1.2.3.img ZORVANE_RELEASE_1.10.0.img ZORVANE_ALPHA_1.11.0.img; do
  [ -f "$dir/media/usb0/$img" ] || head -c 4096 /dev/zero > "$dir/media/usb0/$img"
done
rec="$dir/media/usb0/REC_20261122_101500.mp4"
if [ ! -f "$rec" ] && command -v ffmpeg >/dev/null 2>&1; then
  ffmpeg -loglevel error -y -f lavfi -i testsrc=size=1280x720:rate=30 -t 3 -pix_fmt yuv420p "$rec" || true
fi
echo "$dir"
