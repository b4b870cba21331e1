#!/bin/sh
# Installs what is missing, builds, and runs every test through ctest.
set -e
top=$(cd "$(dirname "$0")/.." && pwd)
"$top/scripts/install-deps.sh"
"$top/scripts/build.sh"
ctest --test-dir "${CS_BUILD_DIR:-$top/build}" -j2 --output-on-failure "$@"
