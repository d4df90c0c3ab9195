#!/usr/bin/env bash
# The app as a screen reader meets it: under Xvfb with the accessibility bus, an AT-SPI client
# walks every window, the first run from its welcome to a failed check, the panel while pairing
# and each settings tab, and fails on any control without a name.
# Usage: accessibility.sh QUIVRAMAC FAKE_ETSERVER
# Exit 77 (skipped) where the bus or its client is missing, unless QUIVRA_REQUIRE_E2E is set.
set -euo pipefail

logs=(app.log bus.log)
. "$(dirname "$0")/common.sh"

if [ "${1:-}" != --inside ]; then
    for tool in Xvfb dbus-run-session xdotool /usr/libexec/at-spi-bus-launcher; do
        command -v "$tool" >/dev/null || skip "$tool is not installed (scripts/setup.sh installs it)"
    done
    /usr/bin/python3 -c "import pyatspi" 2>/dev/null \
        || skip "python3-pyatspi is not installed (scripts/setup.sh installs it)"
    exec dbus-run-session -- "$0" --inside "$@"
fi
shift
app=$1 etserver=$2

export work=$(mktemp -d)
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_DATA_HOME=$work/home/.local/share
export XDG_RUNTIME_DIR=$work/run
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
xvfb_pid= bus_pid= app_pid=
# "|| true": under set -e a kill of a process already gone would end the trap before the rest.
trap 'for pid in $app_pid $bus_pid $xvfb_pid; do kill "$pid" 2>/dev/null || true; done; wait; rm -rf "$work"' EXIT
unset WAYLAND_DISPLAY QT_QPA_PLATFORM

display=$((100 + RANDOM % 800))
Xvfb ":$display" -screen 0 1280x800x24 -nolisten tcp >"$work/xvfb.log" 2>&1 &
xvfb_pid=$!
export DISPLAY=":$display"
within 10 xdotool getdisplaygeometry >/dev/null 2>&1 || skip "Xvfb cannot run here"
/usr/libexec/at-spi-bus-launcher --launch-immediately >"$work/bus.log" 2>&1 &
bus_pid=$!
# Qt speaks to the bus from its start only when told that an assistive technology listens.
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1

mkdir "$work/bundle" && cp "$app" "$(dirname "$app")/quivramac-windows.so" "$etserver" "$work/bundle/"
"$work/bundle/quivramac" >"$work/app.log" 2>&1 &
app_pid=$!

setup="QuivraMac Setup"
/usr/bin/python3 "$(dirname "$0")/atspi_walk.py" "$app_pid" \
    show \
    key "$setup" Return key "$setup" Return expect "SSH Server: failed" show \
    press "Pair New Device" expect "Pairing code " show \
    press "Settings..." expect "Start server automatically" show \
    press Logs expect Clear show \
    press Devices expect "Paired Devices" show \
    || fail "a screen reader cannot name everything (above)"
kill -0 "$app_pid" || fail "the app ended"
echo "PASS: every control of every window has a name"
