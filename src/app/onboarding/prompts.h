#pragma once

#include <QString>

// The ready-made help requests the system check hands the user when an item fails.
namespace prompts {

// The running system: "macOS {version}"; on Linux its pretty name ("Debian GNU/Linux 12
// (bookworm)").
QString systemName();
// "{systemName}, QuivraMac {appVersion}\nHost: {host}".
QString context();

QString remoteLogin();
QString missingSshDirectory();
QString wrongPermissions(const QString &octal);
QString wrongKeyPermissions(const QString &octal);
QString portInUse(int port);
// Only the last 500 characters of the log go in, fenced; an empty log adds nothing.
QString serverCrash(int exitCode, const QString &logs);
QString noNetwork();
// Names the running system, whose package manager or source build the answer depends on.
QString etserverMissing();

// The first three lines, and "\n..." when there are more.
QString preview(const QString &prompt);

} // namespace prompts
