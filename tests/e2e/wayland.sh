#!/usr/bin/env bash
# The app on a Wayland desktop with no X11 at all: a headless weston, Qt's own Wayland platform,
# and no tray. It must open the first-run window and the panel as windows of its own, and
# `quivractl open` must reach it.
# Usage: wayland.sh QUIVRAMAC FAKE_ETSERVER QUIVRACTL
# Exit 77 (skipped) where weston or Qt's Wayland platform is missing, unless QUIVRA_REQUIRE_E2E
# is set, as in CI.
set -euo pipefail

logs=(weston.log app.log)
. "$(dirname "$0")/common.sh"

if [ "${1:-}" != --inside ]; then
    for tool in weston dbus-run-session; do
        command -v "$tool" >/dev/null || skip "$tool is not installed (scripts/setup.sh installs it)"
    done
    compgen -G "/usr/lib/*/qt6/plugins/platforms/libqwayland-*.so" >/dev/null \
        || skip "Qt's Wayland platform is not installed (qt6-wayland; scripts/setup.sh installs it)"
    exec dbus-run-session -- "$0" --inside "$@"
fi
shift
app=$1 etserver=$2 ctl=$3

export work=$(mktemp -d)
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_DATA_HOME=$work/home/.local/share
export XDG_RUNTIME_DIR=$work/run
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
weston_pid= app_pid=
# "|| true": under set -e a kill of a process already gone would end the trap before the rest.
trap '[ -n "$app_pid" ] && kill "$app_pid" 2>/dev/null || true; [ -n "$weston_pid" ] && kill "$weston_pid" 2>/dev/null || true; wait; rm -rf "$work"' EXIT
unset DISPLAY QT_QPA_PLATFORM XDG_SESSION_TYPE

weston --backend=headless-backend.so --socket=quivra --idle-time=0 >"$work/weston.log" 2>&1 &
weston_pid=$!
within 10 test -S "$XDG_RUNTIME_DIR/quivra" || skip "weston cannot run here: $(tail -3 "$work/weston.log")"
export WAYLAND_DISPLAY=quivra

mkdir "$work/bundle" && cp "$app" "$(dirname "$app")/quivramac-windows.so" "$etserver" "$work/bundle/"
# The protocol trace shows every window the app makes, by its title.
WAYLAND_DEBUG=client "$work/bundle/quivramac" >"$work/app.log" 2>&1 &
app_pid=$!
toplevel() { grep -Eq "xdg_toplevel@[0-9]+\.set_title\(\"$1\"\)" "$work/app.log"; }
within 20 toplevel "QuivraMac Setup" || fail "no first-run window"
within 10 grep -q "^No system tray on this desktop" "$work/app.log" || fail "no word of the missing tray"
within 10 toplevel QuivraMac || fail "no panel window"
grep -q "uses X11" "$work/app.log" && fail "fell back to X11"
kill -0 "$app_pid" || fail "the app ended"

"$ctl" open || fail "quivractl open failed"
kill -0 "$app_pid" || fail "the app ended after quivractl open"
echo "PASS: the first-run window and the panel on Wayland"
