#!/usr/bin/env bash
# Installs the Debian packages Keldor needs to build, test and run.
# Idempotent: packages already present are left alone. Needs root (or sudo).
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-charts-dev libqt6opengl6-dev libgl-dev
  nlohmann-json3-dev libfmt-dev
  emscripten nodejs chromium
  libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-dev
  xvfb xauth
  python3
  dpkg-dev file help2man librsvg2-bin desktop-file-utils appstream lintian man-db
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
# Debian's nodejs comes without npm; a Node.js from elsewhere brings its own.
command -v npm >/dev/null || missing+=(npm)
[ ${#missing[@]} -eq 0 ] && exit 0

SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
