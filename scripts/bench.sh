#!/usr/bin/env bash
# Benchmarks every catalog document: time per call and bytes per document.
# Extra arguments go to Google Benchmark, e.g. --benchmark_filter=system.
#   scripts/bench.sh --ratios [--filter TEXT]   rendering beside cJSON_Print
#                                               and setting beside cJSON_Parse,
#                                               with the allocations and peak
#                                               heap of a render and a set
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DMW_TESTS=OFF >/dev/null
if [ "${1:-}" = --ratios ]; then
    shift
    cmake --build build-bench -j"$(nproc)" --target middleware_ratios >&2
    exec ./build-bench/middleware_ratios "$@"
fi
cmake --build build-bench -j"$(nproc)" --target middleware_bench >&2
exec ./build-bench/middleware_bench "$@"
