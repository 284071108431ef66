#!/usr/bin/env bash
# Runs every fuzz target of a KELDOR_FUZZ build for a bounded time, starting
# from its kept corpus: run.sh BUILD_DIR [SECONDS_IN_ALL]. Fails on any finding.
# New inputs go to a scratch corpus; a crash input is left in BUILD_DIR/fuzz-findings,
# to be kept in tests/fuzz/corpus/NAME/ as a regression case once fixed.
set -euo pipefail
build=$1 total=${2:-50}
here=$(cd "$(dirname "$0")" && pwd)
findings=$build/fuzz-findings
mkdir -p "$findings"
targets=("$build"/bin/fuzz_*)
[ -x "${targets[0]}" ] || { echo "no fuzz targets in $build/bin" >&2; exit 1; }
seconds=$(( total / ${#targets[@]} ))
[ "$seconds" -ge 1 ] || seconds=1
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export LSAN_OPTIONS=suppressions=$here/../../scripts/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
passed=0 failed=0
for target in "${targets[@]}"; do
  name=$(basename "$target"); name=${name#fuzz_}
  scratch=$(mktemp -d)
  if "$target" -max_total_time="$seconds" -runs=100000000 -timeout=10 -rss_limit_mb=2048 \
      -artifact_prefix="$findings/$name-" -print_final_stats=1 "$scratch" "$here/corpus/$name" \
      >"$findings/$name.log" 2>&1; then
    passed=$((passed + 1))
    echo "fuzz $name: $(grep -m1 -o 'stat::number_of_executed_units: *[0-9]*' "$findings/$name.log" | grep -o '[0-9]*$') inputs, no finding"
  else
    echo "fuzz $name: FINDING (log: $findings/$name.log)" >&2
    tail -40 "$findings/$name.log" >&2
    failed=$((failed + 1))
  fi
  rm -rf "$scratch"
done
echo "fuzz: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
