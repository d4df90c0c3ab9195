#pragma once

#include "platform/systeminfo.h"

#include <QCoreApplication>
#include <QString>

// The texts that name this machine and its platform's services. macOS keeps the product's own
// words; elsewhere the same sentences speak of a computer, its system tray and its SSH server.
// Each platform's set lives in one file (wording_mac.cpp, wording_linux.cpp) so that the two can
// be read side by side.
namespace wording {

// Texts the windows show in the user's language; those a window shares with the phone's report,
// a help request or the log are English, and a window shows them through shown().

// This machine as the user calls it: "Mac", "computer".
QString machine();
// The same as a label under its picture: "Mac", "Computer".
QString machineLabel();

QString welcomeTitle();
QString welcomeBody();
QString explanationBody();
QString explanationTrayRow();
// "%1" is the phone's name.
QString connectedToThisMachine();
QString checkingMachine();
QString acceptsSecureConnections();
QString accessibleOnNetwork();
// "%1" is the name of the network this machine is on.
QString networkMismatch();
QString connectionFailed();

// The SSH server check, as the phone's report names it; the setup window shows its name through
// shown().
QString sshCheckName();
QString sshCheckDescription();
// Why it failed and what mends it: a sentence, and the command to run where there is one.
struct SshAdvice
{
    QString message;
    QString command;
};
// The setup window's words, in the user's language: the command stands apart so that it can be
// copied.
SshAdvice sshSetupAdvice(const platform::SshServerInstall &install);
// The phone's report: the same in English, in one line.
QString sshNotRunning(const platform::SshServerInstall &install);
QString sshRequestTitle();
QString sshRequest();
QString noNetworkRequest();

// The commands, one a line, that install Eternal Terminal's package here, or nothing where there
// is none. Asked only where the app has no server of its own.
QString etserverInstallCommand();

// The windows' titles, as the task bar lists them beside the system's own windows.
QString setupWindowTitle();
QString settingsWindowTitle();
// Whether the first-run window draws its own top strip instead of the system's title bar.
bool setupWindowFrameless();
// The settings' row that says whether the server runs, in the section "Status".
QString statusRowLabel();
// The log's line when a server process has gone: `code` is its exit code, or the signal that
// ended it when `crashed`; `asked` when the app stopped it. Empty where the platform logs
// nothing, as for a stop the log has already reported.
QString serverEnded(int code, bool crashed, bool asked);

#ifndef Q_OS_MACOS
// The same for a system described by os-release(5) text, in its own package manager's words.
SshAdvice sshAdviceOn(const QString &osRelease, const platform::SshServerInstall &install);
QString etserverInstallCommandOn(const QString &osRelease);
#endif

// The windows' copy of one of the English texts above that the report also carries.
inline QString shown(const QString &english)
{
    return QCoreApplication::translate("wording", english.toUtf8().constData());
}

} // namespace wording
