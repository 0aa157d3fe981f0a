#!/usr/bin/env bash
# Line and branch coverage of the library (middleware/) under the whole plain
# test suite, measured with gcov and reported by gcovr. Fails below 96% of
# lines or 75% of branches (the branch count includes the key handling inlined
# at every line of every description, decided per key at compile time).
#   scripts/coverage.sh [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
dir=${1:-build-coverage}
flags="--coverage -O0 -fprofile-update=atomic"
cmake -S . -B "$dir" -DMW_TESTS=ON -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" \
      -DCMAKE_EXE_LINKER_FLAGS=--coverage -DCMAKE_SHARED_LINKER_FLAGS=--coverage >/dev/null
cmake --build "$dir" -j"$(nproc)" >/dev/null
find "$dir" -name '*.gcda' -delete
# The export test reads the shared object's symbol table, which the coverage
# runtime changes; every other test runs. The GoogleTest suite runs in two
# shards of one process each (test by test, writing the counts at every exit
# takes most of the time), then the tools' tests under CTest.
pids=()
for shard in 0 1; do
    GTEST_TOTAL_SHARDS=2 GTEST_SHARD_INDEX=$shard "$dir/tests/middleware_tests" --gtest_brief=1 \
        --gtest_filter='-SharedObject.*' >"$dir/shard-$shard.log" 2>&1 &
    pids+=($!)
done
failed=0
for shard in 0 1; do
    wait "${pids[$shard]}" || { tail -n 80 "$dir/shard-$shard.log"; failed=1; }
done
[ "$failed" = 0 ]
ctest --test-dir "$dir" -j"$(nproc)" -L tools >/dev/null || {
    ctest --test-dir "$dir" -j"$(nproc)" -L tools --rerun-failed --output-on-failure
    exit 1
}
gcovr --root . --filter 'middleware/' --exclude-unreachable-branches --exclude-throw-branches \
      --print-summary --fail-under-line 96 --fail-under-branch 75 "$dir" >"$dir/coverage.txt" || {
    cat "$dir/coverage.txt"
    exit 1
}
tail -n 4 "$dir/coverage.txt"
