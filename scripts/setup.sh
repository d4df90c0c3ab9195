#!/usr/bin/env bash
# Installs what building, running and testing QuivraMac needs on Debian 12 or Ubuntu, then
# configures and builds it in ./build. Only missing packages are installed.
#   scripts/setup.sh [--app] [CMAKE_OPTION...]     --app: build only what running the app needs
set -euo pipefail
cd "$(dirname "$0")/.."
targets=()
if [ "${1:-}" = --app ]; then
    targets=(--target quivra-app)
    shift
fi

packages=(
    # build
    cmake ninja-build g++ pkgconf qt6-base-dev qt6-base-dev-tools libgl-dev
    libavahi-compat-libdnssd-dev qt6-declarative-dev qt6-svg-dev libxcb1-dev
    # the translations: lupdate and lrelease, and the CMake functions that run them
    qt6-l10n-tools qt6-tools-dev
    # the checks the test command makes: formatting and the views' lint
    clang-format qt6-declarative-dev-tools
    # the sanitizer and fuzzing build: clang with libFuzzer and the sanitizers' runtimes
    clang libclang-rt-14-dev
    # the windows' QML modules
    qml6-module-qtqml qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates
    qml6-module-qtquick-layouts qml6-module-qtquick-window qml6-module-qtqml-workerscript
    # run: pgrep, DNS-SD daemon and its bus, Qt's Wayland platform
    procps avahi-daemon dbus dbus-bin qt6-wayland
    # tests: real SSH server and client, service browser, network namespaces, HTTP client
    avahi-utils openssh-server openssh-client iproute2 util-linux curl xvfb xauth
    # tests of the desktop: a headless Wayland compositor, an X11 tray, X11 windows from outside
    weston trayer xdotool
    # the screen reader's view: the accessibility bus and a client that walks it
    at-spi2-core python3-pyatspi
    # the Japanese and Chinese screenshots: fonts with their letters
    fonts-ipafont-gothic fonts-wqy-microhei
    # the app's own Eternal Terminal server, built from its source: its libraries, and git to
    # fetch the source where ../shared/et has none
    libsodium-dev libprotobuf-dev protobuf-compiler libutempter-dev libunwind-dev libssl-dev
    zlib1g-dev git
    # the Debian package: its dependencies worked out, its desktop entry and metainfo validated
    dpkg-dev file desktop-file-utils appstream
)

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" \
        || missing+=("$package")
done
if ((${#missing[@]})); then
    sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    echo "Installing: ${missing[*]}"
    "${sudo[@]}" apt-get update -qq
    # Through env: sudo drops the caller's environment, and debconf would then ask its questions.
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}"
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
cmake --build build "${targets[@]}"
