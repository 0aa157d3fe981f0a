#!/usr/bin/env bash
# The full load test of the device simulator (127.0.0.1 only): 64 connections
# for 10 seconds of GETs spread over every page, a mixed run with set
# requests, and the same load against a fixed-body server from the same HTTP
# set-up; fails when the simulator keeps less than half the fixed-body rate.
#   scripts/load.sh [--seconds S] [--connections C]
# With --cameras N it loads N cameras of one process instead, beside one
# camera under the same load, and fails when the fleet keeps less than 0.8 of
# that camera's rate:
#   scripts/load.sh --cameras 100
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build >/dev/null
cmake --build build -j"$(nproc)" --target mw-device >&2
exec python3 tests/device/load.py build/mw-device --seconds 10 --connections 64 --enforce "$@"
