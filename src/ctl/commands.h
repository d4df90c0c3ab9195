#pragma once

#include <QStringList>

class ControlClient;

// quivractl's commands. Each returns the process exit code.
namespace commands {

enum ExitCode { Success = 0, Failed = 1, Usage = 2, NotRunning = 3, Interrupted = 130 };

int status(ControlClient &client, bool json);
int start(ControlClient &client);
int stop(ControlClient &client);
int pair(ControlClient &client);
int logs(ControlClient &client, bool follow);
int devices(ControlClient &client, bool json);
// Asks before revoking unless `yes`; a phone revoked can no longer log in.
int revoke(ControlClient &client, const QString &nameOrFingerprint, bool yes);
// The app's panel on the screen, or its first-run window while that is open.
int open();

} // namespace commands
