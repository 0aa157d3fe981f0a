#!/usr/bin/env bash
# The whole test suite built for 64-bit Arm (aarch64-linux-gnu) with Debian's
# cross compiler and run under qemu-user. Installs what is missing first.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup-arm64.sh
source scripts/shards.sh

echo "== build (aarch64)"
bash scripts/build.sh build-arm64 -DMW_TESTS=ON -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/aarch64-linux-gnu.cmake"
file build-arm64/libmiddleware.so.1.0.0 | sed 's/, BuildID.*//'
echo "== tests (aarch64 under qemu)"
# The suite is one GoogleTest program: run under qemu in two shards of one
# process each, rather than a qemu start for each of its 2,900 tests.
qemu=(qemu-aarch64 -L /usr/aarch64-linux-gnu -E LD_LIBRARY_PATH=/usr/lib/aarch64-linux-gnu)
run_shards build-arm64/shard "${qemu[@]}" ./build-arm64/tests/middleware_tests
