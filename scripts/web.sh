#!/usr/bin/env bash
# Builds the browser edition and serves it on a local port (default 8080):
#   ./scripts/web.sh [PORT]
# The output, build-web/site, is static files that any web server can host.
set -euo pipefail
cd "$(dirname "$0")/.."

port=${1:-8080}
bash scripts/install-deps.sh
bash scripts/build-web.sh
echo "Keldor in the browser: http://127.0.0.1:$port/  (Ctrl+C stops the server)"
exec python3 -m http.server "$port" --bind 127.0.0.1 --directory build-web/site
