#!/usr/bin/env bash
# The Debian package: built by cpack from this build, installed into this machine with apt as a
# user would, Recommends included (in CI the container is the fresh Debian root), its programs run
# from /usr/bin and its desktop files checked by the validators; then, as a fresh user, the
# installed app runs its own server, reports itself ready and carries a phone's `et` session
# through the system's SSH server, before the package is purged again with anything apt added.
# Usage: package.sh BUILD_DIR VERSION ET_DIR (the build's Eternal Terminal, for its client et)
# Exit 77 (skipped) where it cannot run (not root, no apt, the package already installed here),
# unless QUIVRA_REQUIRE_E2E is set, as in CI.
set -euo pipefail

logs=(cpack.log apt.log)
. "$(dirname "$0")/common.sh"

# The fresh user's first start of /usr/bin/quivramac: ready, paired, and a session.
session() {
    local et=$1 ctl=/usr/bin/quivractl
    /usr/bin/quivramac --headless >"$work/app.log" 2>&1 &
    within 10 "$ctl" status >/dev/null || fail "the installed app did not start"
    within 10 sh -c "$ctl status | grep -q '^Server: *running'" || fail "no server: $("$ctl" status)"
    "$ctl" status | grep -q "^Reason:" && fail "the server reports a problem: $("$ctl" status)"
    local status
    status=$(curl -sS --max-time 10 http://127.0.0.1:8080/status) || fail "no status"
    for field in '"id":"etserver","name":"Quivra Server","passed":true' \
        '"id":"ssh_daemon","name":"SSH Server","passed":true'; do
        grep -qF "$field" <<<"$status" || fail "status lacks $field: $status"
    done
    "$ctl" pair >"$work/pair.out" 2>&1 &
    local pair_pid=$!
    within 10 grep -q "^Pairing code: " "$work/pair.out" || fail "quivractl pair showed no code"
    local code
    code=$(sed -n 's/^Pairing code: \([0-9]\{6\}\)$/\1/p' "$work/pair.out")
    ssh-keygen -q -t ed25519 -N '' -C "package phone" -f "$work/phone_key"
    local reply
    reply=$(curl -sS --max-time 5 -H "X-Device-Name: Package Phone" \
        --data-binary "@$work/phone_key.pub" "http://127.0.0.1:8080/pair?token=$code")
    [ "$reply" = "Paired Successfully" ] || fail "pairing reply: $reply"
    wait "$pair_pid" || fail "quivractl pair exited with $?"
    # A stock client: it starts etterminal by name over SSH.
    local marker="quivra-package-$RANDOM"
    timeout 30 script -qec "$et --serverfifo /tmp/et.fifo -c 'echo $marker-\$((6 * 7)); exit' -p 2022 \
        --ssh-option IdentityFile=$work/phone_key --ssh-option IdentitiesOnly=yes \
        --ssh-option StrictHostKeyChecking=no --ssh-option UserKnownHostsFile=/dev/null \
        $(id -un)@127.0.0.1" /dev/null >"$work/et.out" 2>&1 || fail "et exited with $?"
    # The typed command shows the sum unworked; only the shell's output has 42.
    grep -aq "$marker-42" "$work/et.out" || fail "the session did not print its line"
    echo "et printed $marker through /usr/bin/etterminal and /usr/libexec/quivramac/etserver"
}
if [ "${1:-}" = --as-user ]; then
    # In the private namespaces, as the fresh user, on a session bus of its own.
    work=$2
    logs=(app.log pair.out et.out sshd.log)
    session "${@:3}"
    exit
fi
build=$1 version=$2 et=${3:-}

[ "$(id -u)" -eq 0 ] || skip "installing a package needs root"
[ -x "$et/et" ] || skip "Eternal Terminal was not built with the app (no source: see cmake's output)"
for tool in apt-get dpkg-query cpack dpkg-shlibdeps desktop-file-validate appstreamcli useradd \
    unshare setpriv dbus-run-session ssh-keygen script curl /usr/sbin/sshd; do
    command -v "$tool" >/dev/null || skip "$tool is not installed (scripts/setup.sh installs it)"
done
unshare -n -m -p --fork --mount-proc true 2>/dev/null ||
    skip "cannot make private network, mount and process namespaces here"
if dpkg-query -W -f='${Status}' quivramac 2>/dev/null | grep -q "install ok installed"; then
    skip "quivramac is installed on this machine, and the test would replace it"
fi

export work=$(mktemp -d)
before=$(dpkg-query -W -f='${Package}\n' | sort)
installed=
user= stage=
cleanup() {
    [ -z "$stage" ] || rm -rf "$stage"
    [ -z "$user" ] || userdel -r "$user" 2>/dev/null || true
    if [ -n "$installed" ]; then
        added=$(comm -13 <(echo "$before") <(dpkg-query -W -f='${Package}\n' | sort))
        # shellcheck disable=SC2086
        DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq -o DPkg::Lock::Timeout=120 \
            $added >>"$work/apt.log" 2>&1 || echo "could not purge: $added" >&2
    fi
    rm -rf "$work"
}
trap cleanup EXIT

cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work" >"$work/cpack.log" 2>&1 \
    || fail "cpack could not build the package"
deb=$(echo "$work"/quivramac_"$version"_*.deb)
[ -f "$deb" ] || fail "no package: $(ls "$work")"
fields=$(dpkg-deb -f "$deb" Depends Recommends Suggests)
grep -q "^Depends:.*libqt6core6" <<<"$fields" || fail "the Qt libraries are not dependencies"
grep -q "^Recommends:.*avahi-daemon" <<<"$fields" || fail "avahi-daemon is not recommended"
grep -q "^Recommends:.*openssh-server" <<<"$fields" || fail "openssh-server is not recommended"
grep -q "^Depends:.*libsodium" <<<"$fields" || fail "Eternal Terminal's libraries are not dependencies"

installed=1
DEBIAN_FRONTEND=noninteractive apt-get install -y -q -o DPkg::Lock::Timeout=120 "$deb" \
    >"$work/apt.log" 2>&1 || fail "apt-get install failed"

# --version and --help touch nothing: no settings, no bus, no display, no files in HOME.
mkdir "$work/home"
run() { env -i PATH=/usr/bin:/bin HOME="$work/home" DISPLAY=:99 \
    DBUS_SESSION_BUS_ADDRESS="unix:path=$work/no-bus" "$@"; }
out=$(run /usr/bin/quivramac --version) || fail "quivramac --version failed"
[ "$out" = "QuivraMac $version" ] || fail "quivramac --version printed: $out"
out=$(run /usr/bin/quivramac --help) || fail "quivramac --help failed"
grep -q "^Usage: quivramac" <<<"$out" || fail "quivramac --help printed: $out"
out=$(run /usr/bin/quivractl --help) || fail "quivractl --help failed"
grep -q "quivractl" <<<"$out" || fail "quivractl --help printed: $out"
[ -z "$(ls -A "$work/home")" ] || fail "--version or --help wrote: $(ls -A "$work/home")"
# The executable itself needs no GUI library; its windows are a module beside it.
ldd /usr/bin/quivramac | grep -q "libQt6\(Gui\|Quick\|Widgets\)" && fail "quivramac links GUI libraries"
[ -f /usr/lib/quivramac/quivramac-windows.so ] || fail "no windows module"
[ -f /usr/lib/systemd/user/quivramac.service ] || fail "no user service"
grep -qx "ExecStart=/usr/bin/quivramac" /usr/lib/systemd/user/quivramac.service \
    || fail "the service starts: $(grep ExecStart /usr/lib/systemd/user/quivramac.service)"
[ -f /usr/share/icons/hicolor/256x256/apps/quivramac.png ] || fail "no icon in hicolor"
desktop-file-validate /usr/share/applications/quivramac.desktop || fail "desktop entry invalid"
appstreamcli validate --no-net /usr/share/metainfo/org.quivra.QuivraMac.metainfo.xml \
    || fail "metainfo invalid"

grep -q "Apache License" /usr/share/doc/quivramac/copyright || fail "no Eternal Terminal licence"
[ -x /usr/libexec/quivramac/etserver ] || fail "no etserver in /usr/libexec/quivramac"

# A fresh user in private network, mount and process namespaces (their own port 22, 2022 and
# 8080, /tmp and /run), with only the package's etterminal on the PATH an SSH login gets.
user=quivrapkg$$
useradd -m -s /bin/bash "$user"
stage=$(mktemp -d /var/tmp/quivra-package.XXXXXX)
cp "$0" "$(dirname "$0")/common.sh" "$et/et" "$stage/"
mkdir "$stage/user" && chown "$user:" "$stage/user"
chmod 755 "$stage"
status=0
unshare -n -m -p --fork --mount-proc -- bash -c '
    set -e
    mount --make-rprivate /
    mount -t tmpfs tmpfs /tmp && mount -t tmpfs tmpfs /run && mount -t tmpfs tmpfs /usr/local/bin
    mkdir -p /run/sshd
    ip link set lo up
    /usr/sbin/sshd -E "$1/user/sshd.log"
    exec setpriv --reuid="$2" --regid="$2" --init-groups env -i HOME="/home/$2" USER="$2" \
        LOGNAME="$2" PATH=/usr/bin:/bin dbus-run-session -- "$1/package.sh" --as-user "$1/user" \
        "$1/et"' - "$stage" "$user" || status=$?
((status == 0)) || fail "the installed app did not carry a session as a fresh user"

DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq -o DPkg::Lock::Timeout=120 quivramac \
    >>"$work/apt.log" 2>&1 || fail "apt-get purge failed"
[ ! -e /usr/bin/quivramac ] || fail "/usr/bin/quivramac is still there after the purge"
echo "PASS: $(basename "$deb") installs, runs its own server for a fresh user, and purges"
