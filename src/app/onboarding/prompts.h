#pragma once

#include <QString>

// The ready-made help requests the system check hands the user when an item fails.
namespace prompts {

// "{system}, QuivraMac {appVersion}\nHost: {host}". On Linux {system} is the running system's
// pretty name ("Debian GNU/Linux 12 (bookworm)"); on macOS "macOS {version}".
QString context();

QString remoteLogin();
QString missingSshDirectory();
QString wrongPermissions(const QString &octal);
QString portInUse(int port);
// Only the last 500 characters of the log go in, fenced; an empty log adds nothing.
QString serverCrash(int exitCode, const QString &logs);
QString noNetwork();

// The first three lines, and "\n..." when there are more.
QString preview(const QString &prompt);

} // namespace prompts
