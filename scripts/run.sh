#!/usr/bin/env bash
# Builds Keldor (installing what it needs) and starts the desktop program.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target keldor
exec build/bin/keldor "$@"
