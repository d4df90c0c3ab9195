#include "launch.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstdio>
#include <cstring>

namespace launch {

Options parse(int argc, char **argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const char *argument = argv[i];
        if (!std::strcmp(argument, "--help") || !std::strcmp(argument, "-h"))
            options.help = true;
        else if (!std::strcmp(argument, "--version"))
            options.version = true;
        else if (!std::strcmp(argument, "--headless"))
            options.headless = true;
    }
    return options;
}

void printHelp()
{
    std::fputs(
        "Usage: quivramac [--headless]\n"
        "\n"
        "Makes this computer reachable from the Quivra app on your iPhone: runs an Eternal\n"
        "Terminal server (etserver) on port 2022, pairs phones on TCP port 8080 and answers\n"
        "their readiness checks. It lives in the system tray (the menu bar on macOS); without\n"
        "a display (neither DISPLAY nor WAYLAND_DISPLAY) it runs with no windows.\n"
        "\n"
        "Options:\n"
        "  --headless  run with no windows, even where there is a display\n"
        "  --version   print the version and exit\n"
        "  -h, --help  print this help and exit\n"
        "\n"
        "quivractl controls the running app from a terminal: quivractl --help.\n",
        stdout);
}

void printVersion()
{
    std::fputs("QuivraMac " QUIVRA_VERSION "\n", stdout);
}

bool hasDisplay()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform == "offscreen" || platform == "minimal")
        return false;
#ifdef Q_OS_MACOS
    return true;
#else
    // A platform asked for by name (eglfs, vnc) is the user's call.
    return !platform.isEmpty() || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#endif
}

} // namespace launch
