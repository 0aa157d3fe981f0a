#!/usr/bin/env bash
# The whole test suite: a plain build and a sanitizer build (ASan + UBSan),
# each built and run through CTest. Exits non-zero when any test fails.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh

echo "== build (plain)"
bash scripts/build.sh build -DMW_TESTS=ON
echo "== tests (plain)"
ctest --test-dir build --output-on-failure -j"$(nproc)"

echo "== build (sanitizers)"
bash scripts/build.sh build-sanitize -DMW_TESTS=ON -DMW_SANITIZE=ON
echo "== tests (sanitizers)"
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    ctest --test-dir build-sanitize --output-on-failure -j"$(nproc)"
