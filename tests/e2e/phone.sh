#!/usr/bin/env bash
# A phone's whole journey against the real app: find the service by DNS-SD, read /status, pair
# with the code that `quivractl pair` shows, then log in over SSH with the paired key. A second
# phone pairs on the same listener, and the first again under its old name; with no etserver, and
# with port 2022 taken, the phone still finds the service and reads why the computer is not ready.
# Usage: phone.sh QUIVRAMAC FAKE_ETSERVER QUIVRACTL
# Runs as root in a private network namespace, so that its SSH server on port 22 and the app's
# ports touch nothing on the host. Exit 77 (skipped) where a real part is missing, unless
# QUIVRA_REQUIRE_E2E is set, as in CI.
set -euo pipefail

logs=(app.log pair.out sshd.log)
. "$(dirname "$0")/common.sh"

if [ "${1:-}" != --inside ]; then
    for tool in avahi-browse avahi-daemon dbus-daemon dbus-run-session curl ssh ssh-keygen \
        unshare ip /usr/sbin/sshd; do
        command -v "$tool" >/dev/null || skip "$tool is not installed (scripts/setup.sh installs it)"
    done
    [ "$(id -u)" -eq 0 ] || skip "needs root to run an SSH server on port 22 in a private network namespace"
    unshare -n true 2>/dev/null || skip "cannot make a network namespace here"

    export work=$(mktemp -d)
    started_bus= started_avahi=
    cleanup() {
        [ -n "$started_avahi" ] && avahi-daemon -k 2>/dev/null || true
        [ -n "$started_bus" ] && kill "$(cat /run/dbus/pid)" 2>/dev/null || true
        rm -rf "$work"
    }
    trap cleanup EXIT
    # DNS-SD goes through the system's daemon; where none runs, one on loopback only.
    if ! avahi-daemon --check 2>/dev/null; then
        if ! dbus-send --system --print-reply --dest=org.freedesktop.DBus / \
            org.freedesktop.DBus.GetId >/dev/null 2>&1; then
            mkdir -p /run/dbus && rm -f /run/dbus/pid /run/dbus/system_bus_socket
            dbus-daemon --system --fork && started_bus=1
        fi
        printf '[server]\nallow-interfaces=lo\nuse-ipv6=no\n[wide-area]\nenable-wide-area=no\n[publish]\npublish-hinfo=no\npublish-workstation=no\n' >"$work/avahi.conf"
        avahi-daemon -D -f "$work/avahi.conf" && started_avahi=1
        within 10 avahi-daemon --check || fail "avahi-daemon does not start"
    fi
    unshare -n -- dbus-run-session -- "$0" --inside "$@"
    exit
fi

shift
app=$1 etserver=$2 ctl=$3
step() { echo "== $*"; }

step "private network: loopback and one Ethernet address"
ip link set lo up
ip link add eth0 type veth peer name eth1
ip addr add 192.0.2.10/24 dev eth0
ip link set eth0 up && ip link set eth1 up

step "a real OpenSSH server on 127.0.0.1:22"
start_sshd
trap 'for pid in $(cat "$work/sshd.pid" "$work/held2022.pid" 2>/dev/null) ${pair_pid:-} ${app_pid:-}; do
    kill "$pid" 2>/dev/null || true
done; wait' EXIT

# Starts the app from bundle $1 (with PATH $2), and waits for its listener.
launch_app() {
    [ -z "${app_pid:-}" ] || { kill "$app_pid"; wait "$app_pid" || true; }
    : >"$work/app.log"
    env PATH="$2" QT_QPA_PLATFORM=offscreen "$1/quivramac" >"$work/app.log" 2>&1 &
    app_pid=$!
    within 10 grep -q "PairingListener started on port 8080" "$work/app.log" ||
        fail "the app did not start"
}

step "the real quivramac with the fake etserver beside it"
mkdir "$work/bundle" && cp "$app" "$etserver" "$work/bundle/"
launch_app "$work/bundle" "$PATH"

step "phone: find the service"
label=$(hostname | cut -d. -f1)
browse() {
    found=$(avahi-browse -rpt _quivra-terminal._tcp 2>/dev/null |
        grep -m1 "^=;[^;]*;IPv4;QuivraMac-$label;_quivra-terminal._tcp;local;") || return 1
}
within 20 browse || fail "QuivraMac-$label was not found by DNS-SD"
echo "$found"
port=$(cut -d';' -f9 <<<"$found")
[ "$port" = 8080 ] || fail "advertised port $port"

step "phone: GET /status"
status=$(curl -sS --max-time 5 "http://127.0.0.1:$port/status")
echo "$status"
for field in '"ready":true' "\"hostname\":\"$label\"" "\"username\":\"$(id -un)\"" \
    '"ip":"192.0.2.10"' '"pairingPort":8080' '"id":"ssh_daemon","name":"SSH Server","passed":true' \
    '"id":"ssh_dir"' '"id":"auth_keys"' '"id":"etserver","name":"Quivra Server","passed":true' \
    '"id":"network"' '"id":"tailscale"'; do
    grep -qF "$field" <<<"$status" || fail "status lacks $field"
done

# `quivractl pair`, then phone $1 posts a fresh key $work/$2 with the code it shows; the code is
# left in $code.
pair_phone() {
    rm -f "$work/pair.out" # so that the wait below cannot read the last pairing's code
    "$ctl" pair >"$work/pair.out" 2>&1 &
    pair_pid=$!
    within 10 grep -q "^Pairing code: " "$work/pair.out" || fail "quivractl pair showed no code"
    code=$(sed -n 's/^Pairing code: \([0-9]\{6\}\)$/\1/p' "$work/pair.out")
    echo "code $code"
    ssh-keygen -q -t ed25519 -N '' -C "$1" -f "$work/$2"
    reply=$(curl -sS --max-time 5 -H "X-Device-Name: $1" --data-binary "@$work/$2.pub" \
        "http://127.0.0.1:$port/pair?token=$code")
    echo "$reply"
    [ "$reply" = "Paired Successfully" ] || fail "pairing reply: $reply"
    wait "$pair_pid" || fail "quivractl pair exited with $?"
    grep -q "^Paired with $1$" "$work/pair.out" || fail "quivractl pair did not report $1"
    grep -qF "$(cut -d' ' -f2 "$work/$2.pub")" "$HOME/.ssh/authorized_keys" ||
        fail "the key of $1 is not in authorized_keys"
}

step "user: quivractl pair; phone: POST its new key"
pair_phone "Test Phone" phone_key
first_code=$code

step "a second phone pairs with a new code, on the same listener"
pair_phone "Second Phone" second_key
[ "$code" != "$first_code" ] || fail "the second pairing reused the code"
grep -qF "$(cut -d' ' -f2 "$work/phone_key.pub")" "$HOME/.ssh/authorized_keys" ||
    fail "the first phone's key is gone"
"$ctl" devices | tee "$work/devices.out"
for name in "Test Phone" "Second Phone"; do
    grep -q "^$name " "$work/devices.out" || fail "devices does not list $name"
done

step "the second phone, reinstalled, pairs again under the same name"
pair_phone "Second Phone" reinstalled_key

step "phone: log in over SSH with the paired key"
ssh -i "$work/phone_key" -o IdentitiesOnly=yes -o BatchMode=yes -o StrictHostKeyChecking=no \
    -o UserKnownHostsFile=/dev/null -o LogLevel=ERROR "$(id -un)@127.0.0.1" true ||
    fail "ssh with the paired key failed"

step "quivractl status"
"$ctl" status | tee "$work/status.out"
grep -q "^Last paired:  Second Phone$" "$work/status.out" || fail "status does not show Second Phone"
grep -q "^Pairing:      off$" "$work/status.out" || fail "pairing mode is still on"

step "user: quivractl devices, then revoke the phone"
fingerprint=$(ssh-keygen -lf "$work/phone_key.pub" | cut -d' ' -f2)
"$ctl" devices | tee "$work/devices.out"
grep -q "^Test Phone .*$fingerprint$" "$work/devices.out" || fail "devices does not list Test Phone"
"$ctl" revoke --yes "Test Phone" || fail "revoke failed"
"$ctl" devices --json | grep -qF "$fingerprint" && fail "the revoked phone is still listed"
if ssh -i "$work/phone_key" -o IdentitiesOnly=yes -o BatchMode=yes -o StrictHostKeyChecking=no \
    -o UserKnownHostsFile=/dev/null -o LogLevel=ERROR "$(id -un)@127.0.0.1" true; then
    fail "ssh with the revoked key still logs in"
fi

# The phone reads why this computer is not ready from a listener that outlives the server.
not_ready() {
    status=$(curl -sS --max-time 5 "http://127.0.0.1:8080/status") || return 1
    grep -qF '"ready":false' <<<"$status" &&
        grep -qF '"id":"etserver","name":"Quivra Server","passed":false,"message":"Quivra server is not running","canFix":true' <<<"$status"
}

step "no etserver anywhere: the phone still finds the service and reads why"
mkdir "$work/empty" && cp "$app" "$work/empty/"
bare_path=/usr/sbin:/usr/bin:/sbin:/bin
PATH=$bare_path command -v etserver >/dev/null && skip "an etserver is installed on this machine"
launch_app "$work/empty" "$bare_path"
within 10 sh -c '"$0" status | grep -q "^Reason:       Eternal Terminal (etserver) is not installed$"' "$ctl" ||
    fail "status: $("$ctl" status)"
within 10 not_ready || fail "status report: $status"
echo "$status"
within 20 browse || fail "not advertised without etserver"

step "port 2022 taken: the phone still finds the service and reads why"
sed 's/^Port 22$/Port 2022/; s#^PidFile .*#PidFile '"$work"'/held2022.pid#' "$work/sshd_config" >"$work/held2022_config"
/usr/sbin/sshd -f "$work/held2022_config" -E "$work/held2022.log"
launch_app "$work/bundle" "$PATH"
within 10 sh -c '"$0" status | grep -q "^Reason:       Port 2022 is in use$"' "$ctl" ||
    fail "status: $("$ctl" status)"
within 10 not_ready || fail "status report: $status"
echo "$status"
within 20 browse || fail "not advertised with port 2022 taken"
kill "$(cat "$work/held2022.pid")"
echo "PASS"
