#include "ui/uicontroller.h"

#include "platform/autostart.h"
#include "platform/logging.h"
#include "platform/systeminfo.h"
#include "platform/userdefaults.h"
#include "server/servermanager.h"
#include "ui/formats.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputDevice>

#include <algorithm>
#include <utility>

namespace {
const QString autoStartKey = QStringLiteral("autoStartServer");
const QString launchAtLoginKey = QStringLiteral("launchAtLogin");
} // namespace

UiController::UiController(ServerManager *serverManager, QObject *parent)
    : QObject(parent)
    , m_serverManager(serverManager)
    , m_devices(serverManager ? &serverManager->phones().devices() : nullptr)
{
    userdefaults::registerDefaults({ { autoStartKey, true }, { launchAtLoginKey, true } });
    if (!serverManager)
        return;
    connect(serverManager, &ServerManager::localIPChanged, this,
            &UiController::manualSetupDetailsChanged);
    connect(&serverManager->supervisor(), &ServerSupervisor::failureChanged, this,
            &UiController::etserverMissingChanged);
}

bool UiController::etserverMissing() const
{
    return m_serverManager
        && m_serverManager->supervisor().failure().kind == ServerFailure::NotInstalled;
}

bool UiController::autoStartServer() const
{
    return userdefaults::boolValue(autoStartKey);
}

void UiController::setAutoStartServer(bool on)
{
    if (on == autoStartServer())
        return;
    userdefaults::setValue(autoStartKey, on);
    Q_EMIT autoStartServerChanged();
}

QString UiController::userName() const
{
    return platform::userName();
}

bool UiController::launchAtLogin() const
{
    return userdefaults::value(launchAtLoginKey).value<bool>();
}

void UiController::setLaunchAtLogin(bool on)
{
    if (on == launchAtLogin())
        return;
    userdefaults::setValue(launchAtLoginKey, on);
    platform::applyLaunchAtLoginPreference();
    Q_EMIT launchAtLoginChanged();
}

QString UiController::manualSetupDetails() const
{
    if (!m_serverManager)
        return {};
    return tr("Address: %1\nUser: %2\nSSH port: %3\nEternal Terminal port: %4")
        .arg(m_serverManager->localIP(), userName(),
             QString::number(m_serverManager->environment().sshPort),
             QString::number(m_serverManager->port()));
}

void UiController::toggleServer()
{
    if (!m_serverManager)
        return;
    if (m_serverManager->isRunning())
        m_serverManager->stopServer();
    else
        m_serverManager->startServer();
}

void UiController::clearLogs()
{
    if (m_serverManager)
        m_serverManager->setLogs({});
}

void UiController::openWindow(const QString &id)
{
    Q_EMIT windowRequested(id);
}

int UiController::takeSettingsTab()
{
    return std::exchange(m_settingsTab, GeneralTab);
}

void UiController::openSettings(SettingsTab tab)
{
    m_settingsTab = tab;
    Q_EMIT settingsTabRequested();
    Q_EMIT windowRequested(QStringLiteral("settings"));
}

void UiController::openInstallSteps()
{
    m_installSteps = true;
    openSettings(GeneralTab);
}

bool UiController::takeInstallSteps()
{
    return std::exchange(m_installSteps, false);
}

void UiController::quit()
{
    // The normal quit path: aboutToQuit stops the server.
    QCoreApplication::quit();
}

void UiController::copyText(const QString &text)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(text);
}

QString UiController::uptimeText(double seconds) const
{
    return formats::uptime(seconds);
}

QString UiController::guessingText(const QStringList &addresses) const
{
    return PairingSession::describeGuessers(addresses);
}

QString UiController::deviceConnectingText(const QString &deviceName) const
{
    return tr("<b>%1</b> is connecting...").arg(deviceName.toHtmlEscaped());
}

bool UiController::canMoveFocus()
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return true;
    const auto devices = QInputDevice::devices();
    return std::any_of(devices.begin(), devices.end(), [](const QInputDevice *device) {
        return device->type() == QInputDevice::DeviceType::Keyboard;
    });
}
