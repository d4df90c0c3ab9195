#pragma once

#include <QString>

namespace platform {

// Starts the app when the user logs in, or stops doing so. False, with the reason, on failure.
bool setLaunchAtLogin(bool on, QString *error = nullptr);
// Where the login entry lives (Linux: the freedesktop autostart folder), for tests.
QString launchAtLoginEntry();

} // namespace platform
