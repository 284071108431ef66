#!/usr/bin/env bash
# Compares one golden scenario with its kept output: check.sh HEADLESS NAME
set -euo pipefail
headless=$1 name=$2
here=$(cd "$(dirname "$0")" && pwd)
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
bash "$here/run-scenario.sh" "$headless" "$name" "$out"
status=0
cmp "$here/$name.csv" "$out/$name.csv" || status=1
if [ -f "$here/$name.json.gz" ]; then
  gzip -dc "$here/$name.json.gz" | cmp - "$out/$name.json" || status=1
else
  cmp "$here/$name.json" "$out/$name.json" || status=1
fi
[ $status -eq 0 ] || echo "golden run '$name' changed: review it with tests/golden/regenerate.sh" >&2
exit $status
