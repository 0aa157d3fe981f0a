#!/usr/bin/env bash
# Runs one libFuzzer target from its committed corpus for a bounded time:
#   scripts/fuzz.sh TARGET SECONDS      (fuzz_set, fuzz_serializers,
#                                        fuzz_capability, fuzz_readers,
#                                        fuzz_file_reader)
#   scripts/fuzz.sh --all SECONDS       every target in turn
#   scripts/fuzz.sh --corpus            rewrite the committed seed corpora
# Prints each target's executions and coverage. A crash, leak or failed check
# leaves its input under build-fuzz/findings/ and fails.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
export CC=clang CXX=clang++
cmake -S . -B build-fuzz -DMW_FUZZ=ON -DMW_TESTS=OFF -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
targets=(fuzz_set fuzz_serializers fuzz_capability fuzz_readers fuzz_file_reader)
cmake --build build-fuzz -j"$(nproc)" --target "${targets[@]}" make_corpus >&2

if [ "${1:-}" = --corpus ]; then
    for t in "${targets[@]}"; do rm -rf "fuzz/corpus/${t#fuzz_}"; mkdir -p "fuzz/corpus/${t#fuzz_}"; done
    ./build-fuzz/fuzz/make_corpus fuzz
    exit 0
fi

run() {
    local target=$1 seconds=$2 name=${1#fuzz_}
    local work=build-fuzz/work/$name findings=build-fuzz/findings/$name
    # A corpus folder with no seeds yet is not kept by git: start that target
    # from nothing rather than fail.
    mkdir -p "$work" "$findings" "fuzz/corpus/$name"
    local log=build-fuzz/$name.log
    if ! ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=halt_on_error=1 \
        "./build-fuzz/fuzz/$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 \
        -dict=fuzz/keys.dict -print_final_stats=1 -artifact_prefix="$findings/" \
        "$work" "fuzz/corpus/$name" >"$log" 2>&1; then
        tail -n 40 "$log"
        echo "$target: FAILED (input in $findings)"
        return 1
    fi
    local runs cov
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    cov=$(grep -o 'cov: [0-9]*' "$log" | tail -n 1)
    echo "$target: $runs executions in ${seconds}s, $cov edges"
}

case "${1:-}" in
--all)
    status=0
    for t in "${targets[@]}"; do run "$t" "${2:-30}" || status=1; done
    exit $status ;;
fuzz_*) run "$1" "${2:-30}" ;;
*) echo "usage: scripts/fuzz.sh TARGET SECONDS | --all SECONDS | --corpus" >&2; exit 2 ;;
esac
