#!/usr/bin/env bash
# Runs each fuzz target for a bounded time: run_fuzzers.sh BUILD_DIR SECONDS.
# New corpus entries go to BUILD_DIR/corpus/<target>, inputs that crash,
# leak, time out or break a check to BUILD_DIR/crashes/<target>/, the log to
# BUILD_DIR/logs/<target>.log. Exits 1 when any target found something.
set -uo pipefail
cd "$(dirname "$0")/.."

build=${1:?build directory}
seconds=${2:-300}
shared_corpus=../shared/corpus/jdf
failed=0

run_target() {
    local target=$1 dict=$2 max_len=$3
    shift 3
    local binary=$build/fuzz/zundo_fuzz_$target
    local corpus=$build/corpus/$target
    local crashes=$build/crashes/$target
    local log=$build/logs/$target.log
    mkdir -p "$corpus" "$crashes" "$build/logs"

    # Seeds are read, never written: new entries land in the build's corpus.
    local seeds=(fuzz/seeds/"$target")
    [ -d tests/fuzz_regressions/"$target" ] && seeds+=(tests/fuzz_regressions/"$target")
    for extra in "$@"; do
        [ -d "$extra" ] && seeds+=("$extra")
    done

    echo "== $target: ${seconds}s from ${seeds[*]}"
    "$binary" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len="$max_len" \
        -dict="$dict" -artifact_prefix="$crashes/" -print_final_stats=1 \
        "$corpus" "${seeds[@]}" >"$log" 2>&1
    local status=$?
    grep -E '^(#[0-9]+ *DONE|Done [0-9]+ runs|stat::number_of_executed_units)' "$log" | tail -2
    if [ "$status" -ne 0 ] || [ -n "$(ls -A "$crashes")" ]; then
        failed=1
        echo "!! $target found a problem (exit $status); last lines of $log:"
        tail -30 "$log"
        for input in "$crashes"/*; do
            [ -e "$input" ] && echo "   reproduce: $binary $input"
        done
    fi
}

run_target ticket fuzz/jdf.dict 65536 examples "$shared_corpus"/*/
run_target value_text fuzz/value_text.dict 256

if [ "$failed" -ne 0 ]; then
    echo "Fuzzing found problems: keep each input under tests/fuzz_regressions/<target>/ with its fix."
    exit 1
fi
echo "Fuzzing found nothing in ${seconds}s per target."
