#include "ui/trayicon.h"

#include "app/quivramacapp.h"
#include "appicon.h"
#include "platform/logging.h"
#include "server/servermanager.h"
#include "ui/formats.h"
#include "ui/windowmanager.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDateTime>
#include <QGuiApplication>

TrayIcon::TrayIcon(QuivraMacApp *app, ServerManager *manager, WindowManager *windows,
                   QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_manager(manager)
    , m_windows(windows)
    , m_host(QGuiApplication::platformName() == QLatin1String("xcb")
             || QGuiApplication::platformName() == QLatin1String("cocoa"))
{
    m_menu.addAction(QStringLiteral("Open"), this, &TrayIcon::openPanel);
    m_menu.addAction(QStringLiteral("Pair New Device"), this, [this] {
        if (!m_manager->isPairing())
            m_manager->togglePairingMode();
        openPanel();
    });
    m_menu.addAction(QStringLiteral("Settings..."), this,
                     [this] { m_windows->open(QStringLiteral("settings")); });
    m_menu.addSeparator();
    m_menu.addAction(QStringLiteral("Quit QuivraMac"), qApp, &QCoreApplication::quit);

    m_pairingTick.setInterval(1000);
    connect(&m_pairingTick, &QTimer::timeout, this, &TrayIcon::updateToolTip);
    connect(manager, &ServerManager::isRunningChanged, this, &TrayIcon::updateToolTip);
    connect(manager, &ServerManager::isPairingChanged, this, &TrayIcon::updateToolTip);
    connect(manager, &ServerManager::pairingExpiresAtChanged, this, &TrayIcon::updateToolTip);
    connect(app, &QuivraMacApp::hasCompletedOnboardingChanged, this, &TrayIcon::updateIcon);
    connect(&m_host, &TrayHost::availableChanged, this, &TrayIcon::followHost);
    followHost();
}

TrayIcon::~TrayIcon() = default;

QString TrayIcon::iconName(bool hasCompletedOnboarding)
{
    return hasCompletedOnboarding ? QStringLiteral("quivramac-symbolic")
                                  : QStringLiteral("quivramac-setup-symbolic");
}

QIcon TrayIcon::icon(bool hasCompletedOnboarding)
{
    QIcon drawn;
    const QString file = hasCompletedOnboarding ? appicon::tray() : appicon::setupSymbolic();
    for (const int side : { 16, 22, 24, 32, 48, 64 })
        drawn.addPixmap(QPixmap::fromImage(appicon::render(file, side)));
    return QIcon::fromTheme(iconName(hasCompletedOnboarding), drawn);
}

QString TrayIcon::toolTip(bool running, int port, int secondsLeft)
{
    QString text = QStringLiteral("QuivraMac\n")
        + (running ? QStringLiteral("Server running on port %1").arg(port)
                   : QStringLiteral("Server off"));
    if (secondsLeft >= 0)
        text += QStringLiteral("\nPairing: the code expires in ") + formats::countdown(secondsLeft);
    return text;
}

void TrayIcon::followHost()
{
    if (!m_tray && m_host.isAvailable())
        createItem();
    const bool shown =
        m_tray && (m_statusNotifierItem ? m_host.hasStatusNotifierHost() : m_host.hasNativeTray());
    if (shown == m_shown && m_followed)
        return;
    m_followed = true;
    m_shown = shown;
    if (shown) {
        qCInfo(lcConsole).nospace().noquote()
            << "Tray item shown ("
            << (m_statusNotifierItem ? "StatusNotifierItem" : "the desktop's own tray") << ")";
        m_windows->closePanelWindow();
    } else {
        qCInfo(lcConsole).nospace().noquote()
            << (m_everShown ? "The system tray went away: the QuivraMac panel opens as a window "
                              "instead"
                            : "No system tray on this desktop: the QuivraMac panel opens as a "
                              "window instead");
        m_windows->openPanelAsWindow();
    }
    m_everShown = m_everShown || shown;
    Q_EMIT shownChanged();
}

void TrayIcon::createItem()
{
    m_statusNotifierItem = m_host.hasStatusNotifierHost();
    m_tray = std::make_unique<QSystemTrayIcon>();
    m_tray->setContextMenu(&m_menu);
    connect(m_tray.get(), &QSystemTrayIcon::activated, this, &TrayIcon::onActivated);
    updateIcon();
    updateToolTip();
    m_tray->show();
}

void TrayIcon::onActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason != QSystemTrayIcon::Trigger)
        return;
    // A StatusNotifierItem host's activation point does not reach Qt; the pointer is where the
    // item was clicked.
    const QRect geometry = m_tray->geometry();
    m_windows->togglePanel(geometry.isValid() ? geometry : QRect(QCursor::pos(), QSize(1, 1)));
}

void TrayIcon::openPanel()
{
    const QQuickWindow *panel = m_windows->window(QStringLiteral("panel"));
    if (panel && panel->isVisible())
        m_windows->open(QStringLiteral("panel"));
    else if (m_shown)
        onActivated(QSystemTrayIcon::Trigger);
    else
        m_windows->openPanelAsWindow();
}

void TrayIcon::updateIcon()
{
    if (m_tray)
        m_tray->setIcon(icon(m_app->hasCompletedOnboarding()));
}

void TrayIcon::updateToolTip()
{
    const bool pairing = m_manager->isPairing();
    if (pairing != m_pairingTick.isActive())
        pairing ? m_pairingTick.start() : m_pairingTick.stop();
    const qint64 left =
        (m_manager->pairingExpiresAt() - QDateTime::currentMSecsSinceEpoch()) / 1000;
    if (m_tray)
        m_tray->setToolTip(toolTip(m_manager->isRunning(), m_manager->port(),
                                   pairing ? int(std::max<qint64>(left, 0)) : -1));
}
