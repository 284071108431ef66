#!/usr/bin/env bash
# Runs one golden scenario: run-scenario.sh HEADLESS NAME OUTDIR
# writes OUTDIR/NAME.json and OUTDIR/NAME.csv.
set -euo pipefail
headless=$1 name=$2 out=$3
here=$(dirname "$0")
line=$(grep -E "^$name:" "$here/scenarios.txt") || { echo "no scenario '$name'" >&2; exit 2; }
read -r -a args <<<"${line#*:}"
"$headless" "${args[@]}" --json "$out/$name.json" --csv "$out/$name.csv" >/dev/null 2>&1
