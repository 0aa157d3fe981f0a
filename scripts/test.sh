#!/usr/bin/env bash
# The whole test suite: a plain build (with the device simulator's client
# test), a short load test and the browser test of the simulator, the OpenAPI
# document's checks by third-party tools (scripts/contract.sh), a sanitizer
# build (ASan + UBSan), the concurrency test under ThreadSanitizer, the fuzz
# targets for a bounded time, a coverage build held to its floor, the shared
# object's size held to its ceilings, and a 64-bit Arm build run under
# qemu-user.
# Installs what is missing first. Exits non-zero when any test fails.
# MW_SKIP_ARM64=1 leaves out the Arm build (a quicker local run).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
source scripts/shards.sh

echo "== build (plain)"
bash scripts/build.sh build -DMW_TESTS=ON
echo "== tests (plain)"
ctest --test-dir build --output-on-failure -j"$(nproc)"

echo "== device simulator: short load test and the browser page in Chromium"
python3 tests/device/load.py build/mw-device --seconds 2 --connections 16
python3 tests/device/load.py build/mw-device --seconds 2 --cameras 20
bash scripts/setup-browser.sh
node tests/browser/browser_test.js build/mw-device build/browser-test.png

echo "== OpenAPI document: linters, generated types, typed client, validating proxy"
bash scripts/contract.sh build

echo "== build (sanitizers)"
bash scripts/build.sh build-sanitize -DMW_TESTS=ON -DMW_SANITIZE=ON
echo "== tests (sanitizers)"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
# The GoogleTest suite in two shards of one process each: started test by test
# under the sanitizers, it spends most of its time starting and checking for
# leaks at every exit. Then the other tests (the tools') under CTest.
run_shards build-sanitize/shard ./build-sanitize/tests/middleware_tests
ctest --test-dir build-sanitize --output-on-failure -j"$(nproc)" -L tools
unset ASAN_OPTIONS UBSAN_OPTIONS

echo "== concurrency test (thread sanitizer)"
cmake -S . -B build-tsan -DMW_TESTS=ON -DMW_TSAN=ON >/dev/null
cmake --build build-tsan -j"$(nproc)" --target middleware_tests >/dev/null
TSAN_OPTIONS=halt_on_error=1 ./build-tsan/tests/middleware_tests --gtest_filter='Concurrency.*'

echo "== fuzzing (each target about 30 s from its corpus)"
bash scripts/fuzz.sh --all "${MW_FUZZ_SECONDS:-30}"

echo "== coverage of middleware/ (lines and branches)"
bash scripts/coverage.sh build-coverage

echo "== size of the shared object built for size, against bench/size_budget.txt"
bash scripts/size.sh --check

if [ "${MW_SKIP_ARM64:-0}" != 1 ]; then
    bash scripts/test-arm64.sh
fi
