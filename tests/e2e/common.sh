# What the end-to-end scripts share; sourced, with $work set to the script's scratch folder and
# logs=(...) naming the files in it that a failure prints.

# Exit 77 (skipped) with the reason, or fail where CI requires every real part.
skip() {
    if [ -n "${QUIVRA_REQUIRE_E2E:-}" ]; then
        echo "FAIL (required): $*" >&2
        exit 1
    fi
    echo "SKIP: $*"
    exit 77
}
fail() {
    echo "FAIL: $*" >&2
    for log in "${logs[@]}"; do
        [ -f "$work/$log" ] && { echo "--- $log"; tail -n 100 "$work/$log"; } >&2
    done
    exit 1
}
# Polls for a condition, at most $1 seconds.
within() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.1
    done
}
