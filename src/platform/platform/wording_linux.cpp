#include "platform/wording.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <cstring>

namespace wording {

// Decorated like every other window of the desktop, with titles that do not read as the
// system's own Settings.
QString setupWindowTitle()
{
    return QCoreApplication::translate("wording", "QuivraMac Setup");
}
QString settingsWindowTitle()
{
    return QCoreApplication::translate("wording", "QuivraMac Settings");
}
bool setupWindowFrameless()
{
    return false;
}
QString statusRowLabel()
{
    return QCoreApplication::translate("wording", "Server");
}

// A stop the user asked for is already logged as such; the signal that ended it would read as a
// fault ("code 15").
QString serverEnded(int code, bool crashed, bool asked)
{
    if (asked)
        return {};
    if (crashed) {
        const char *name = ::strsignal(code);
        return QStringLiteral("Server ended by signal %1 (%2)")
            .arg(code)
            .arg(name ? QString::fromLocal8Bit(name) : QStringLiteral("unknown"));
    }
    return QStringLiteral("Server exited with code %1").arg(code);
}

QString machine()
{
    return QStringLiteral("computer");
}
QString machineLabel()
{
    return QCoreApplication::translate("wording", "Computer");
}

QString welcomeTitle()
{
    return QCoreApplication::translate("wording", "Your computer, ready for Quivra.");
}
QString welcomeBody()
{
    return QCoreApplication::translate(
        "wording",
        "This app runs quietly in your system tray,\nkeeping your computer "
        "connected to Quivra on iOS.");
}
QString explanationBody()
{
    return QCoreApplication::translate(
        "wording",
        "QuivraMac creates a resilient connection\nbetween your iPhone and this computer.");
}
QString explanationTrayRow()
{
    return QCoreApplication::translate("wording", "Runs invisibly in the system tray");
}
QString connectedToThisMachine()
{
    return QCoreApplication::translate("wording", "%1 is now connected to this computer.");
}
QString checkingMachine()
{
    return QCoreApplication::translate("wording", "Checking your computer...");
}
QString acceptsSecureConnections()
{
    return QCoreApplication::translate("wording", "Your computer accepts secure connections");
}
QString accessibleOnNetwork()
{
    return QStringLiteral("Your computer is accessible on the network");
}
QString networkMismatch()
{
    return QCoreApplication::translate(
        "wording", "Your computer is on \"%1\". Make sure your iPhone is on the same network.");
}
QString connectionFailed()
{
    return QCoreApplication::translate("wording", "Your iPhone couldn't reach this computer.");
}

QString sshCheckName()
{
    return QStringLiteral(QT_TRANSLATE_NOOP("wording", "SSH Server"));
}
QString sshCheckDescription()
{
    return QStringLiteral("SSH server is running and accepting connections");
}

namespace {

// ID names the system, ID_LIKE the ones it derives from ("ubuntu debian" for Linux Mint).
QStringList family(const QString &osRelease)
{
    QStringList ids;
    static const QRegularExpression field(QStringLiteral("^(ID|ID_LIKE)=\"?([^\"\\n]*)\"?$"),
                                          QRegularExpression::MultilineOption);
    for (auto it = field.globalMatch(osRelease); it.hasNext();)
        ids += it.next().captured(2).toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return ids;
}

QString osRelease()
{
    QFile file(QStringLiteral("/etc/os-release"));
    if (!file.open(QIODevice::ReadOnly)) {
        file.setFileName(QStringLiteral("/usr/lib/os-release"));
        (void)file.open(QIODevice::ReadOnly);
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

SshAdvice sshAdviceOn(const QString &osRelease, const platform::SshServerInstall &install)
{
    if (install.installed) {
        // Installed and not answering: its service is off (Debian starts it on install, Fedora
        // and Arch do not).
        if (install.service.isEmpty())
            return { QStringLiteral(QT_TRANSLATE_NOOP("wording",
                                                      "SSH server is installed but not running. "
                                                      "Start its service (sshd).")),
                     {} };
        return { QStringLiteral(QT_TRANSLATE_NOOP(
                     "wording", "SSH server is installed but not running. Start it with:")),
                 QStringLiteral("sudo systemctl enable --now ") + install.service };
    }
    const QString prefix = QStringLiteral(
        QT_TRANSLATE_NOOP("wording", "SSH server is not installed. Install it with:"));
    for (const QString &id : family(osRelease)) {
        if (id == QLatin1String("debian") || id == QLatin1String("ubuntu"))
            return { prefix, QStringLiteral("sudo apt install openssh-server") };
        if (id == QLatin1String("fedora"))
            return { prefix,
                     QStringLiteral("sudo dnf install openssh-server && sudo systemctl enable "
                                    "--now sshd") };
        if (id == QLatin1String("arch"))
            return { prefix,
                     QStringLiteral("sudo pacman -S openssh && sudo systemctl enable --now sshd") };
    }
    return { QStringLiteral(QT_TRANSLATE_NOOP(
                 "wording", "SSH server is not installed. Install and start OpenSSH's sshd.")),
             {} };
}

namespace {

// Debian's own archive has no Eternal Terminal; its project keeps a repository of its own.
QString etDebianRepositorySteps(const QString &osRelease)
{
    static const QRegularExpression field(QStringLiteral("^VERSION_CODENAME=\"?([a-z]+)\"?$"),
                                          QRegularExpression::MultilineOption);
    const QString codename = field.match(osRelease).captured(1);
    return QStringLiteral(
               "sudo mkdir -m 0755 -p /etc/apt/keyrings\n"
               "curl -sSL https://github.com/MisterTea/debian-et/raw/master/et.gpg | sudo tee "
               "/etc/apt/keyrings/et.gpg >/dev/null\n"
               "echo \"deb [signed-by=/etc/apt/keyrings/et.gpg] "
               "https://mistertea.github.io/debian-et/debian-source/ %1 main\" | sudo tee "
               "/etc/apt/sources.list.d/et.list\n"
               "sudo apt update && sudo apt install et")
        .arg(codename.isEmpty() ? QStringLiteral("$(. /etc/os-release && echo $VERSION_CODENAME)")
                                : codename);
}

} // namespace

QString etserverInstallCommandOn(const QString &osRelease)
{
    for (const QString &id : family(osRelease)) {
        if (id == QLatin1String("ubuntu"))
            return QStringLiteral(
                "sudo add-apt-repository ppa:jgmath2000/et && sudo apt install et");
        if (id == QLatin1String("debian"))
            return etDebianRepositorySteps(osRelease);
        if (id == QLatin1String("fedora"))
            return QStringLiteral("sudo dnf install et");
        if (id == QLatin1String("arch"))
            return QStringLiteral("yay -S eternalterminal");
    }
    return {};
}

// Read once: every status report asks, and the system does not change while the app runs.
const QString &systemRelease()
{
    static const QString text = osRelease();
    return text;
}
SshAdvice sshSetupAdvice(const platform::SshServerInstall &install)
{
    SshAdvice advice = sshAdviceOn(systemRelease(), install);
    advice.message = shown(advice.message);
    return advice;
}
QString sshNotRunning(const platform::SshServerInstall &install)
{
    const SshAdvice advice = sshAdviceOn(systemRelease(), install);
    return advice.command.isEmpty() ? advice.message
                                    : advice.message + QLatin1Char(' ') + advice.command;
}
QString etserverInstallCommand()
{
    static const QString command = etserverInstallCommandOn(systemRelease());
    return command;
}
QString sshRequestTitle()
{
    return QStringLiteral("SSH server is not running.");
}
QString sshRequest()
{
    return QStringLiteral("Help me install and start the SSH server on this computer so I can "
                          "connect from my iPhone.");
}
QString noNetworkRequest()
{
    return QStringLiteral(
        "Help me troubleshoot why my computer doesn't have a network connection.");
}

} // namespace wording
