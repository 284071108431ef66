#!/usr/bin/env bash
# Builds the browser edition into build-web/site: the page's npm packages
# from the committed lock file, then the engine compiled with Emscripten.
set -euo pipefail
cd "$(dirname "$0")/.."

# Emscripten's JavaScript optimizer finds Debian's acorn module only here.
export NODE_PATH=/usr/share/nodejs
if [ ! -d web/node_modules ] || [ web/package-lock.json -nt web/node_modules/.package-lock.json ]; then
  (cd web && npm ci --no-audit --no-fund --loglevel=error)
fi
if [ ! -f build-web/build.ninja ]; then
  emcmake cmake -S web -B build-web -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
fi
cmake --build build-web -j"$(nproc)"
