#!/usr/bin/env bash
# Rewrites every golden run from the current build after an intended change,
# then shows what changed, so that the change is one reviewed diff.
#   tests/golden/regenerate.sh [BUILD_DIR]   (default: build)
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-$here/../../build}
cmake --build "$build" --target keldor-headless >/dev/null
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
# JSON files above this size are kept gzipped.
gzip_above=1000000
for name in $(grep -E '^[a-z0-9-]+:' "$here/scenarios.txt" | cut -d: -f1); do
  bash "$here/run-scenario.sh" "$build/bin/keldor-headless" "$name" "$here"
  rm -f "$here/$name.json.gz"
  if [ "$(stat -c %s "$here/$name.json")" -gt $gzip_above ]; then
    gzip -9 -n "$here/$name.json"
  fi
done
git -C "$here" diff --stat -- .
