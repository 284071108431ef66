#!/usr/bin/env bash
# Builds Keldor and runs every test twice: an optimised build (whose Debian
# package is then made and checked, the golden runs in the WebAssembly
# engine, and the browser edition's tests in headless Chromium), then a
# build with AddressSanitizer and UndefinedBehaviorSanitizer; then runs the fuzz
# targets, built with clang, for under a minute in all. Installs what it needs.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh
jobs=$(nproc)
export QT_QPA_PLATFORM=offscreen

echo "== optimised build =="
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"

echo "== Debian package =="
deb=$(bash scripts/package.sh | tail -n 1)
bash scripts/check-package.sh "$deb" build

echo "== WebAssembly engine: the golden runs under node =="
bash web/batch/check-golden.sh

echo "== browser edition (WebAssembly, headless Chromium) =="
bash scripts/build-web.sh
KELDOR_HEADLESS=$PWD/build/bin/keldor-headless node --test web/tests/

echo "== sanitizer build (ASan + UBSan) =="
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-g -O1" \
  -DKELDOR_SANITIZE=ON -DKELDOR_BUILD_BENCH=OFF >/dev/null
cmake --build build-asan -j"$jobs"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:strict_string_checks=1
export LSAN_OPTIONS=suppressions=$PWD/scripts/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
ctest --test-dir build-asan --output-on-failure -j"$jobs"

echo "== fuzz targets (clang, libFuzzer) =="
CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKELDOR_FUZZ=ON \
  -DKELDOR_BUILD_TESTS=OFF -DKELDOR_BUILD_BENCH=OFF >/dev/null
cmake --build build-fuzz -j"$jobs" --target keldor_fuzzers
bash tests/fuzz/run.sh build-fuzz 50
