#!/usr/bin/env bash
# Builds the WebAssembly engine and runs every golden scenario in it under
# node, comparing its files with tests/golden byte for byte.
#   web/batch/check-golden.sh [BUILD_DIR]   (default: build-web)
set -euo pipefail
cd "$(dirname "$0")/../.."
build=${1:-build-web}
# Emscripten's JavaScript optimizer needs Debian's node modules (acorn).
export NODE_PATH=/usr/share/nodejs
emcmake cmake -S web -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" --target keldor-batch
status=0
for name in $(grep -E '^[a-z0-9-]+:' tests/golden/scenarios.txt | cut -d: -f1); do
  if bash tests/golden/check.sh "$build/bin/keldor-batch" "$name"; then
    echo "golden run '$name' in WebAssembly: identical"
  else
    status=1
  fi
done
exit $status
