# Sourced by the test scripts: run_shards LOGPREFIX COMMAND... runs a
# GoogleTest program in two shards of one process each (started test by test
# under sanitizers or qemu it spends most of its time starting), prints each
# shard's summary and, for a failed shard, its log's tail. Fails when a shard
# fails.
run_shards() {
    local log=$1; shift
    local pids=() failed=0 shard
    for shard in 0 1; do
        GTEST_TOTAL_SHARDS=2 GTEST_SHARD_INDEX=$shard "$@" --gtest_brief=1 >"$log-$shard.log" 2>&1 &
        pids+=($!)
    done
    for shard in 0 1; do
        if ! wait "${pids[$shard]}"; then
            tail -n 80 "$log-$shard.log"
            failed=1
        fi
        grep -E '^\[  (PASSED|FAILED)  \]' "$log-$shard.log" || true
    done
    [ "$failed" = 0 ]
}
