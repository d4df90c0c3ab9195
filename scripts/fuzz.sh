#!/usr/bin/env bash
# Runs every libFuzzer target of a fuzz build (configured with -DQUIVRA_FUZZ=ON) for SECONDS
# each, two at a time, starting from the corpus in fuzz/corpus. New inputs go to a scratch
# corpus in the build, never into the repository. Fails on any finding, which is kept in
# BUILD/fuzz-findings; prints each target's executions per second and the coverage it reached.
#   scripts/fuzz.sh [BUILD [SECONDS]]        (defaults: build-fuzz 20)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-fuzz}
seconds=${2:-20}
targets=(fuzz_request fuzz_authorizedkeys fuzz_publickey fuzz_records)
declare -A options=(
    [fuzz_request]="-dict=fuzz/request.dict -max_len=6000"
    [fuzz_publickey]="-dict=fuzz/keys.dict"
    [fuzz_authorizedkeys]="-dict=fuzz/keys.dict"
    [fuzz_records]="-dict=fuzz/records.dict"
)
mkdir -p "$build/fuzz-findings" "$build/fuzz-logs"

fuzz() {
    local target=$1
    mkdir -p "$build/fuzz-corpus/$target"
    # shellcheck disable=SC2086 # the options are words
    "$build/fuzz/$target" ${options[$target]} -max_total_time="$seconds" -timeout=10 \
        -print_final_stats=1 -artifact_prefix="$build/fuzz-findings/$target-" \
        "$build/fuzz-corpus/$target" "fuzz/corpus/$target" >"$build/fuzz-logs/$target.log" 2>&1
}

failed=()
for ((i = 0; i < ${#targets[@]}; i += 2)); do
    pids=()
    for target in "${targets[@]:i:2}"; do
        fuzz "$target" &
        pids+=("$!")
    done
    for n in "${!pids[@]}"; do
        target=${targets[i + n]}
        wait "${pids[n]}" || failed+=("$target")
    done
done

for target in "${targets[@]}"; do
    log=$build/fuzz-logs/$target.log
    last=$(grep -E '^#[0-9]+.*(DONE|pulse|NEW|REDUCE|INITED)' "$log" | tail -1 || true)
    printf '%-22s %s execs/s  cov: %s  ft: %s  corpus: %s\n' "$target" \
        "$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")" \
        "$(sed -n 's/.* cov: \([0-9]*\).*/\1/p' <<<"$last")" \
        "$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' <<<"$last")" \
        "$(sed -n 's/.* corp: \([^ ]*\).*/\1/p' <<<"$last")"
done
if ((${#failed[@]})); then
    for target in "${failed[@]}"; do
        echo "== $target found a fault ($build/fuzz-logs/$target.log):"
        grep -A30 -E '^(FINDING|==[0-9]+==ERROR|.*runtime error|.*Test unit written)' \
            "$build/fuzz-logs/$target.log" | head -60
    done
    exit 1
fi
