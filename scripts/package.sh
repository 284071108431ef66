#!/usr/bin/env bash
# Builds the Debian package keldor_<version>_<arch>.deb in build/ (installing
# what it needs) and prints its path.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target keldor keldor-headless keldor-sweep keldor-screenshot keldor_package_files
(cd build && cpack -G DEB >/dev/null)
version=$(sed -n 's/^set(CPACK_PACKAGE_VERSION "\(.*\)")$/\1/p' build/CPackConfig.cmake)
echo "$PWD/build/keldor_${version}_$(dpkg --print-architecture).deb"
