#!/usr/bin/env bash
# Runs a test in a network namespace of its own with only loopback, so that the fixed ports the
# app and the stand-in server bind (8080, 2022) belong to that test alone. Where no namespace can
# be made it says why and runs on this machine's network, unless CI requires every real part.
set -u
inside='ip link set lo up && exec "$@"'
if [ "$(id -u)" -eq 0 ] && unshare -n true 2>/dev/null; then
    exec unshare -n sh -c "$inside" sh "$@"
elif unshare -rn true 2>/dev/null; then
    exec unshare -rn sh -c "$inside" sh "$@"
fi
reason=$(unshare -rn true 2>&1 | head -n 1)
if [ "${QUIVRA_REQUIRE_E2E:-0}" = 1 ]; then
    echo "no private network namespace ($reason), and CI requires one" >&2
    exit 1
fi
echo "no private network namespace here ($reason): running on this machine's network," \
    "where ports 8080 and 2022 may be taken" >&2
exec "$@"
