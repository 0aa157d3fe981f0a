#!/usr/bin/env bash
# Benchmarks every catalog document: time per call and bytes per document.
# Extra arguments go to Google Benchmark, e.g. --benchmark_filter=system.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DMW_TESTS=OFF >/dev/null
cmake --build build-bench -j"$(nproc)" --target middleware_bench
exec ./build-bench/middleware_bench "$@"
