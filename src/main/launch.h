#pragma once

// How this launch runs, read from the command line and the environment before anything else:
// nothing here touches settings, the session bus, files or a display.
namespace launch {

struct Options
{
    bool help = false;
    bool version = false;
    bool headless = false;
};

// Unknown arguments are left to Qt (-platform and the like).
Options parse(int argc, char **argv);
void printHelp();
void printVersion();

// Whether there is a display to open windows on: Wayland or X11, and no windowless Qt platform
// asked for. Without one the app runs on QtCore alone.
bool hasDisplay();

} // namespace launch
