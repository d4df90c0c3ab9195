#pragma once

#include <QString>

namespace platform {

// Starts the app when the user logs in, or stops doing so. False, with the reason, on failure.
bool setLaunchAtLogin(bool on, QString *error = nullptr);
// Makes the login entry follow the stored "launchAtLogin" preference (on when never set). Only
// for the user's own choices: the setting, and finishing the setup window.
void applyLaunchAtLoginPreference();
// Where the login entry lives (Linux: the freedesktop autostart folder), for tests.
QString launchAtLoginEntry();

} // namespace platform
