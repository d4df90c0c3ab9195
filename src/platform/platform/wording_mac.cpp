#include "platform/wording.h"

#include <QCoreApplication>

namespace wording {

QString setupWindowTitle()
{
    return QCoreApplication::translate("wording", "Setup");
}
QString settingsWindowTitle()
{
    return QCoreApplication::translate("wording", "Settings");
}
bool setupWindowFrameless()
{
    return true;
}
QString statusRowLabel()
{
    return QCoreApplication::translate("wording", "Status");
}

QString serverEnded(int code, bool, bool)
{
    return QStringLiteral("Server exited with code %1").arg(code);
}

QString machine()
{
    return QCoreApplication::translate("wording", "Mac");
}
QString machineLabel()
{
    return QCoreApplication::translate("wording", "Mac");
}

QString welcomeTitle()
{
    return QCoreApplication::translate("wording", "Your Mac, ready for Quivra.");
}
QString welcomeBody()
{
    return QCoreApplication::translate(
        "wording",
        "This app runs quietly in your menu bar,\nkeeping your Mac connected to Quivra on iOS.");
}
QString explanationBody()
{
    return QCoreApplication::translate(
        "wording", "QuivraMac creates a resilient connection\nbetween your iPhone and this Mac.");
}
QString explanationTrayRow()
{
    return QCoreApplication::translate("wording", "Runs invisibly in the menu bar");
}
QString connectedToThisMachine()
{
    return QCoreApplication::translate("wording", "%1 is now connected to this Mac.");
}
QString checkingMachine()
{
    return QCoreApplication::translate("wording", "Checking your Mac...");
}
QString acceptsSecureConnections()
{
    return QCoreApplication::translate("wording", "Your Mac accepts secure connections");
}
QString accessibleOnNetwork()
{
    return QStringLiteral("Your Mac is accessible on the network");
}
QString networkMismatch()
{
    return QCoreApplication::translate(
        "wording", "Your Mac is on \"%1\". Make sure your iPhone is on the same network.");
}
QString connectionFailed()
{
    return QCoreApplication::translate("wording", "Your iPhone couldn't reach this Mac.");
}

QString sshCheckName()
{
    return QStringLiteral(QT_TRANSLATE_NOOP("wording", "Remote Login"));
}
QString sshCheckDescription()
{
    return QStringLiteral("SSH daemon is running and accepting connections");
}
QString sshNotRunning(const platform::SshServerInstall &)
{
    return QStringLiteral("Remote Login is disabled. Enable it in System Settings \u2192 General "
                          "\u2192 Sharing \u2192 Remote Login");
}
SshAdvice sshSetupAdvice(const platform::SshServerInstall &)
{
    return { QCoreApplication::translate("wording", "Remote Login is disabled"), {} };
}
QString sshRequestTitle()
{
    return QStringLiteral("Remote Login is disabled.");
}
QString sshRequest()
{
    return QStringLiteral("Help me enable Remote Login on this Mac so I can connect from my "
                          "iPhone.");
}
QString noNetworkRequest()
{
    return QStringLiteral("Help me troubleshoot why my Mac doesn't have a network connection.");
}

QString etserverInstallCommand()
{
    return QStringLiteral("brew install MisterTea/et/et");
}

} // namespace wording
