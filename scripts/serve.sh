#!/usr/bin/env bash
# The device simulator: every catalog page over HTTP, as the camera serves it.
#   scripts/serve.sh [--port N] [--state DIR] [--listen ADDR] [--threads N] [--timeout SECONDS]
#                    [--cors ORIGIN]... [--require-if-match] [--web DIR]
# Installs what is missing, builds, and starts mw-device on 127.0.0.1:8080 (by
# default); it prints its URL and serves until Ctrl-C. With --state DIR every
# accepted set is saved there and applied again at the next start.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build >/dev/null
cmake --build build -j"$(nproc)" --target mw-device >&2
exec ./build/mw-device "$@"
