#!/usr/bin/env bash
# Sets up, builds and runs Sheetsmith - Chemistry on Debian 12.
#
#   bash tools/dev.sh run [ARGS...]   install what is missing, build, start the program
#   bash tools/dev.sh test            install what is missing, build, run every test
#
# Installing is skipped when every package is already there, so a second run
# only builds what changed.
set -euo pipefail

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="${SHEETSMITH_BUILD_DIR:-$top/build}"
what="${1:-}"
case "$what" in
  run|test) shift ;;
  *) echo "usage: bash tools/dev.sh run [ARGS...] | bash tools/dev.sh test" >&2; exit 2 ;;
esac

packages=(g++ cmake ninja-build ccache qt6-base-dev libgl-dev libgtest-dev libgmock-dev
          libbenchmark-dev fonts-liberation fonts-dejavu-core poppler-utils
          adwaita-icon-theme desktop-file-utils appstream xvfb
          cups cups-client printer-driver-cups-pdf)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if ((${#missing[@]})); then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo=sudo
  echo "Installing: ${missing[*]}"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

if [ ! -f "$build/build.ninja" ]; then
  cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
fi
cmake --build "$build"

if [ "$what" = run ]; then
  exec "$build/bin/sheetsmith" "$@"
fi
cd "$build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$(nproc)"
