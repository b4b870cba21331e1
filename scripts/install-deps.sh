#!/bin/sh
# Installs the Debian 12 packages the build, the tests and the desktop run
# need; does nothing when they are all present. net-tools, iproute2,
# dnsmasq-base and busybox (udhcpc) serve the network test's private namespace;
# openssl makes the companion test's certificate.
set -e
PACKAGES="cmake g++ make pkg-config
qtbase5-dev qtdeclarative5-dev qtdeclarative5-dev-tools qtquickcontrols2-5-dev qtmultimedia5-dev
qttools5-dev qttools5-dev-tools
qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2 qml-module-qtquick-layouts
qml-module-qttest qml-module-qtmultimedia
qml-module-qtquick-virtualkeyboard qtvirtualkeyboard-plugin qml-module-qt-labs-folderlistmodel
libavformat-dev libavcodec-dev libavutil-dev
libgl1-mesa-dri fonts-dejavu-core fonts-wqy-microhei
xvfb xauth xdotool ffmpeg procps strace ccache
net-tools iproute2 dnsmasq-base busybox openssl"
missing=""
for p in $PACKAGES; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
done
[ -z "$missing" ] && exit 0
echo "installing:$missing"
if [ "$(id -u)" -ne 0 ]; then SUDO=sudo; else SUDO=; fi
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends $missing >/dev/null
