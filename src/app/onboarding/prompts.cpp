#include "onboarding/prompts.h"

#include "net/hostlabel.h"
#include "platform/wording.h"

#include <QStringList>
#include <QSysInfo>

namespace prompts {
namespace {

QString issue(const QString &firstLine, const QString &body)
{
    return QStringLiteral("QuivraMac setup issue: ") + firstLine + QStringLiteral("\n\n")
        + context() + QStringLiteral("\n\n") + body;
}

} // namespace

QString systemName()
{
#ifdef Q_OS_MACOS
    return QStringLiteral("macOS ") + QSysInfo::productVersion();
#else
    return QSysInfo::prettyProductName();
#endif
}

QString context()
{
    const QString system = systemName();
    const QString host = net::hostLabel();
    return system + QStringLiteral(", QuivraMac ") + QStringLiteral(QUIVRA_VERSION)
        + QStringLiteral("\nHost: ") + (host.isEmpty() ? wording::machine() : host);
}

QString remoteLogin()
{
    return issue(wording::sshRequestTitle(),
                 QStringLiteral("I tried to connect to port 22 locally and it was refused, which "
                                "means the SSH daemon isn't running.\n\n")
                     + wording::sshRequest());
}

QString missingSshDirectory()
{
    return issue(QStringLiteral("~/.ssh directory doesn't exist."),
                 QStringLiteral("The ~/.ssh directory is missing. Help me create it with the "
                                "correct permissions (700)."));
}

QString wrongPermissions(const QString &octal)
{
    return issue(QStringLiteral("~/.ssh directory has wrong permissions."),
                 QStringLiteral("Current permissions: %1\nExpected: 700\n\nHelp me fix the "
                                "permissions on my ~/.ssh directory.")
                     .arg(octal));
}

QString wrongKeyPermissions(const QString &octal)
{
    return issue(QStringLiteral("~/.ssh/authorized_keys has wrong permissions."),
                 QStringLiteral("Current permissions: %1\nExpected: 600\n\nHelp me fix the "
                                "permissions on my ~/.ssh/authorized_keys file.")
                     .arg(octal));
}

QString portInUse(int port)
{
    return issue(QStringLiteral("Port %1 is already in use.").arg(port),
                 QStringLiteral("The Quivra server (etserver) couldn't start because port %1 is "
                                "occupied.\n\nHelp me either free up port %1 or configure "
                                "QuivraMac to use a different port.")
                     .arg(port));
}

QString serverCrash(int exitCode, const QString &logs)
{
    const QString logBlock = logs.isEmpty()
        ? QString()
        : QStringLiteral("\n\nLast log output:\n```\n") + logs.right(500) + QStringLiteral("\n```");
    return issue(QStringLiteral("The server crashed unexpectedly."),
                 QStringLiteral("etserver exited with code %1.").arg(exitCode) + logBlock
                     + QStringLiteral("\n\nHelp me figure out why the server crashed and how to "
                                      "fix it."));
}

QString noNetwork()
{
    return issue(QStringLiteral("No network connection detected."),
                 QStringLiteral("I couldn't find a usable network interface (WiFi or Ethernet). "
                                "The only IP available is 127.0.0.1.\n\n")
                     + wording::noNetworkRequest());
}

QString etserverMissing()
{
    return issue(QStringLiteral("Eternal Terminal is not installed."),
                 QStringLiteral("QuivraMac runs Eternal Terminal's etserver so that my iPhone's "
                                "sessions survive network changes, but etserver is not installed "
                                "here.\n\nHelp me install Eternal Terminal's etserver on ")
                     + systemName() + QStringLiteral("."));
}

QString preview(const QString &prompt)
{
    const QStringList lines = prompt.split(QLatin1Char('\n'));
    const QString head = lines.mid(0, 3).join(QLatin1Char('\n'));
    return lines.size() > 3 ? head + QStringLiteral("\n...") : head;
}

} // namespace prompts
