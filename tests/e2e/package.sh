#!/usr/bin/env bash
# The Debian package: built by cpack from this build, installed into this machine with apt as a
# user would (in CI the container is the fresh Debian root), its programs run from /usr/bin and
# its desktop files checked by the validators, then purged again with anything apt added.
# Usage: package.sh BUILD_DIR VERSION
# Exit 77 (skipped) where it cannot run (not root, no apt, the package already installed here),
# unless QUIVRA_REQUIRE_E2E is set, as in CI.
set -euo pipefail

logs=(cpack.log apt.log)
. "$(dirname "$0")/common.sh"
build=$1 version=$2

[ "$(id -u)" -eq 0 ] || skip "installing a package needs root"
for tool in apt-get dpkg-query cpack dpkg-shlibdeps desktop-file-validate appstreamcli; do
    command -v "$tool" >/dev/null || skip "$tool is not installed (scripts/setup.sh installs it)"
done
if dpkg-query -W -f='${Status}' quivramac 2>/dev/null | grep -q "install ok installed"; then
    skip "quivramac is installed on this machine, and the test would replace it"
fi

export work=$(mktemp -d)
before=$(dpkg-query -W -f='${Package}\n' | sort)
installed=
cleanup() {
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
grep -q "^Suggests:.*openssh-server" <<<"$fields" || fail "openssh-server is not suggested"

installed=1
DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
    -o DPkg::Lock::Timeout=120 "$deb" >"$work/apt.log" 2>&1 || fail "apt-get install failed"

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

DEBIAN_FRONTEND=noninteractive apt-get purge -y -qq -o DPkg::Lock::Timeout=120 quivramac \
    >>"$work/apt.log" 2>&1 || fail "apt-get purge failed"
[ ! -e /usr/bin/quivramac ] || fail "/usr/bin/quivramac is still there after the purge"
echo "PASS: $(basename "$deb") installs, runs --version and --help, and purges"
