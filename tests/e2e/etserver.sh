#!/usr/bin/env bash
# The app's own Eternal Terminal server, as built beside it, under the real app: a phone's key
# paired through the listener carries an `et` session through the supervised etserver, its
# etterminal started by name as a stock client does; then what goes wrong is named in
# `quivractl status` (port taken, another user's socket, a crash, no etserver), the server starts
# by itself once its port is free and after a crash, a hand-started etserver survives the app's
# start-up, and the advertisement comes back after the DNS-SD daemon starts late or restarts.
# Usage: etserver.sh QUIVRAMAC QUIVRACTL ET_DIR (the build's etserver, etterminal and client et)
# Runs as root in private network, mount and process namespaces: /tmp/et.fifo, /run (system bus,
# avahi-daemon, sshd) and every process it starts are its own and end with it. Exit 77 (skipped)
# where a real part is missing, unless QUIVRA_REQUIRE_E2E is set, as in CI.
set -euo pipefail

logs=(app.log app2.log app3.log app4.log pair.out et.out sshd.log)
. "$(dirname "$0")/common.sh"

if [ "${1:-}" != --inside ]; then
    [ -x "${3:-}/etserver" ] && [ -x "$3/et" ] && [ -x "$3/etterminal" ] ||
        skip "Eternal Terminal was not built with the app (no source: see cmake's output)"
    for tool in avahi-browse avahi-daemon dbus-daemon dbus-run-session dbus-send curl ssh \
        ssh-keygen unshare ip script setpriv /usr/sbin/sshd; do
        command -v "$tool" >/dev/null || skip "$tool is not installed (scripts/setup.sh installs it)"
    done
    [ "$(id -u)" -eq 0 ] || skip "needs root for private namespaces and an SSH server on port 22"
    unshare -n -m -p --fork --mount-proc true 2>/dev/null ||
        skip "cannot make private network, mount and process namespaces here"
    # The private /tmp and /run hide whatever lies below them, a checkout in /tmp included: the
    # scripts and programs run from a copy outside them.
    stage=$(mktemp -d /var/tmp/quivra-e2e.XXXXXX)
    trap 'rm -rf "$stage"' EXIT
    cp "$(dirname "$0")/etserver.sh" "$(dirname "$0")/common.sh" "$1" "$2" "$stage/"
    cp -r "$3" "$stage/et"
    status=0
    unshare -n -m -p --fork --mount-proc -- "$stage/etserver.sh" --inside \
        "$stage/$(basename "$1")" "$stage/$(basename "$2")" "$stage/et" || status=$?
    exit "$status"
fi

if [ "${2:-}" != --session ]; then
    # The namespace's own /tmp and /run, a system bus for avahi-daemon, loopback with multicast.
    mount --make-rprivate /
    mount -t tmpfs tmpfs /tmp
    mount -t tmpfs tmpfs /run
    mkdir -p /run/dbus /run/sshd /run/avahi-daemon
    # etterminal on the PATH an SSH login gets, where the client starts it by name; the package
    # puts it in /usr/bin.
    mount -t tmpfs tmpfs /usr/local/bin
    cp "$4/etterminal" /usr/local/bin/
    ip link set lo up
    ip link set lo multicast on
    dbus-daemon --system --fork
    shift
    exec dbus-run-session -- "$0" --inside --session "$@"
fi

shift 2
app=$1 ctl=$2 et=$3
export work=$(mktemp -d)
step() { echo "== $*"; }
ms() { date +%s%3N; }
reason() { "$ctl" status 2>/dev/null | sed -n 's/^Reason:       //p'; }
dbus_reason() {
    dbus-send --session --print-reply --dest=org.quivra.QuivraMac /ServerManager \
        org.freedesktop.DBus.Properties.Get string:org.quivra.QuivraMac.ServerManager \
        string:failureReason | sed -n 's/^ *variant *string "\(.*\)"$/\1/p'
}
running() { "$ctl" status | grep -q '^Server:       running'; }
reason_is() { [ "$(reason)" = "$1" ]; }
# Something accepts on the port (curl fails otherwise than "connection refused").
holds() {
    local status=0
    curl -s -o /dev/null --max-time 2 "http://127.0.0.1:$1/" || status=$?
    [ "$status" -ne 7 ]
}
label=$(hostname | cut -d. -f1)
advertised() {
    avahi-browse -rpt _quivra-terminal._tcp 2>/dev/null |
        grep -q "^=;lo;IPv4;QuivraMac-$label;_quivra-terminal._tcp;local;.*;8080;"
}
start_avahi() {
    printf '[server]\nallow-interfaces=lo\nuse-ipv6=no\n[wide-area]\nenable-wide-area=no\n[publish]\npublish-hinfo=no\npublish-workstation=no\n' >"$work/avahi.conf"
    avahi-daemon -D -f "$work/avahi.conf"
    within 10 avahi-daemon --check || fail "avahi-daemon does not start"
}
# How long until avahi-browse lists the app's service again, after the daemon answers.
time_advertisement() {
    local from=$(ms)
    within 15 advertised || fail "the service was not registered again"
    echo "advertised again $(($(ms) - from)) ms after avahi-daemon answered"
    (($(ms) - from <= 5000)) || fail "registered again only after more than 5 s"
}
launch_app() {
    QT_QPA_PLATFORM=offscreen "$1/quivramac" >"$work/$2" 2>&1 &
    app_pid=$!
    within 10 "$ctl" status >/dev/null || fail "the app did not start"
}

step "a real OpenSSH server on 127.0.0.1:22"
start_sshd

step "the app with the real etserver beside it, before any DNS-SD daemon runs"
mkdir "$work/bundle" && cp "$app" "$et/etserver" "$work/bundle/"
launch_app "$work/bundle" app.log
within 10 running || fail "the server is not running"
support=$XDG_DATA_HOME/QuivraMac

step "avahi-daemon starts late"
start_avahi
time_advertisement

step "quivractl start waits until port 2022 accepts"
from=$(ms)
"$ctl" start | tee "$work/start.out"
echo "accepting after $(($(ms) - from)) ms"
grep -qx "Server running, accepting connections on port 2022" "$work/start.out" ||
    fail "start did not report an accepting server"

step "a phone pairs a fresh key through the listener"
"$ctl" pair >"$work/pair.out" 2>&1 &
pair_pid=$!
within 10 grep -q "^Pairing code: " "$work/pair.out" || fail "quivractl pair showed no code"
code=$(sed -n 's/^Pairing code: \([0-9]\{6\}\)$/\1/p' "$work/pair.out")
ssh-keygen -q -t ed25519 -N '' -C "et phone" -f "$work/phone_key"
reply=$(curl -sS --max-time 5 -H "X-Device-Name: ET Phone" --data-binary "@$work/phone_key.pub" \
    "http://127.0.0.1:8080/pair?token=$code")
[ "$reply" = "Paired Successfully" ] || fail "pairing reply: $reply"
wait "$pair_pid" || fail "quivractl pair exited with $?"

step "an et session through the supervised server, as the paired user with that key"
marker="quivra-et-$RANDOM"
from=$(ms)
timeout 30 script -qec "$et/et --serverfifo /tmp/et.fifo \
    -c 'echo $marker shell \$\$; exit' -p 2022 --ssh-option IdentityFile=$work/phone_key \
    --ssh-option IdentitiesOnly=yes --ssh-option StrictHostKeyChecking=no \
    --ssh-option UserKnownHostsFile=/dev/null $(id -un)@127.0.0.1" /dev/null >"$work/et.out" 2>&1 ||
    fail "et exited with $?"
echo "session took $(($(ms) - from)) ms"
shell=$(grep -ao "$marker shell [0-9][0-9]*" "$work/et.out" | head -n1 | awk '{print $3}' || true)
[ -n "$shell" ] || fail "the session did not print its line"
echo "et printed: $marker shell $shell"

step "stopping the server ends the session's processes"
"$ctl" stop
gone() { ! pgrep -x etterminal >/dev/null && ! pgrep -x etserver >/dev/null && ! kill -0 "$shell" 2>/dev/null; }
within 5 gone || fail "left running: $(pgrep -a 'etterminal|etserver'; ps -o pid=,args= -p "$shell")"
echo "etserver, etterminal and the session's shell ($shell) are gone"
[ ! -e /tmp/et.fifo ] || fail "the server's socket was left in /tmp"

step "avahi-daemon restarts"
# The listener outlives the pairing and the server's stop.
within 15 advertised || fail "the service is not advertised"
avahi-daemon -k
within 10 sh -c '! avahi-daemon --check' || fail "avahi-daemon did not stop"
start_avahi
time_advertisement

step "another user's socket at /tmp/et.fifo"
"$ctl" stop >/dev/null
mkdir -m 777 /tmp/other-user
setpriv --reuid=nobody --regid=nogroup --clear-groups "$et/etserver" --port 2099 \
    --serverfifo /tmp/et.fifo --logdir /tmp/other-user >/dev/null 2>&1 &
other=$!
other_socket() { [ -S /tmp/et.fifo ] && [ "$(stat -c %U /tmp/et.fifo)" = nobody ]; }
within 10 other_socket || fail "the other user's etserver made no socket"
kill -TERM "$other" && wait "$other" || true
"$ctl" start && fail "start succeeded despite the socket"
echo "quivractl status: Reason: $(reason)"
[ "$(reason)" = "/tmp/et.fifo belongs to another user" ] || fail "reason: $(reason)"
rm -f /tmp/et.fifo

step "a crash is named and followed by a restart"
"$ctl" start >/dev/null || fail "the server did not start"
kill -ABRT "$(pgrep -x etserver)"
within 5 reason_is "etserver stopped unexpectedly (signal 6)" || fail "reason after the crash: $(reason)"
echo "quivractl status: Reason: etserver stopped unexpectedly (signal 6)"
within 5 running || fail "the server was not restarted"
grep -q "Restarting server in 1 s" <<<"$("$ctl" logs)" || fail "the restart was not logged"

step "port 8080 taken at start-up: the server runs, phones cannot pair until it is free"
"$ctl" stop >/dev/null
kill -TERM "$app_pid" && wait "$app_pid" || true
mkdir "$work/held8080"
"$et/etserver" --port 8080 --serverfifo /tmp/held8080.fifo --logdir "$work/held8080" >/dev/null 2>&1 &
held8080=$!
within 10 holds 8080 || fail "nothing holds 8080"
launch_app "$work/bundle" app2.log
within 10 running || fail "the server did not start"
echo "quivractl status: Reason: $(reason)"
[ "$(reason)" = "Port 8080 is in use, so phones cannot pair" ] || fail "reason: $(reason)"
kill -INT "$held8080" && wait "$held8080" || true
within 7 reason_is "" || fail "the listener did not take port 8080"

step "port 2022 held by a hand-started etserver, which survives the app's start-up"
"$ctl" stop >/dev/null
kill -TERM "$app_pid" && wait "$app_pid" || true
mkdir "$work/mine"
"$et/etserver" --port 2022 --pidfile "$work/mine/etserver.pid" --serverfifo /tmp/mine.fifo \
    --logdir "$work/mine" >/dev/null 2>&1 &
mine=$!
within 10 holds 2022 || fail "nothing holds 2022"
launch_app "$work/bundle" app3.log
within 10 reason_is "Port 2022 is in use" || fail "reason after start-up: $(reason)"
kill -0 "$mine" || fail "the app's start-up killed the hand-started etserver"
echo "the hand-started etserver ($mine) survived the app's start-up"
"$ctl" start >"$work/start.out" 2>&1 && fail "start succeeded on a taken port"
echo "quivractl start: exit 1: $(cat "$work/start.out")"
grep -qx "The server did not start: Port 2022 is in use" "$work/start.out" || fail "start said otherwise"
echo "quivractl status: Reason: $(reason)"
[ "$(reason)" = "Port 2022 is in use" ] || fail "reason: $(reason)"
[ "$(dbus_reason)" = "Port 2022 is in use" ] || fail "D-Bus reason: $(dbus_reason)"
kill -INT "$mine" && wait "$mine" || true
from=$(ms)
within 7 running || fail "the server did not start once port 2022 was free"
echo "started $(($(ms) - from)) ms after port 2022 was freed"

step "no etserver anywhere"
"$ctl" stop >/dev/null
kill -TERM "$app_pid" && wait "$app_pid" || true
mkdir "$work/empty" && cp "$app" "$work/empty/"
env PATH="$work/empty" QT_QPA_PLATFORM=offscreen "$work/empty/quivramac" >"$work/app4.log" 2>&1 &
app_pid=$!
within 10 reason_is "Eternal Terminal (etserver) is not installed" || fail "reason: $(reason)"
"$ctl" status
[ "$(reason)" = "Eternal Terminal (etserver) is not installed" ] || fail "reason: $(reason)"
[ "$(dbus_reason)" = "Eternal Terminal (etserver) is not installed" ] || fail "D-Bus: $(dbus_reason)"
# The phone still finds this computer and reads why it is not ready.
status=$(curl -sS --max-time 5 http://127.0.0.1:8080/status) || fail "no status report"
grep -qF '"id":"etserver","name":"Quivra Server","passed":false' <<<"$status" || fail "status: $status"
grep -qF '"ready":false' <<<"$status" || fail "status: $status"
within 15 advertised || fail "not advertised without etserver"
kill -TERM "$app_pid" && wait "$app_pid" || true
echo "PASS"
