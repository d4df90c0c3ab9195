#include "ui/trayicon.h"

#include "app/quivramacapp.h"
#include "appicon.h"
#include "platform/logging.h"
#include "server/servermanager.h"
#include "ui/formats.h"
#include "ui/panelplacement.h"
#include "ui/windowmanager.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDateTime>
#include <QGuiApplication>
#include <QScreen>
#include <QStyleHints>

TrayIcon::TrayIcon(QuivraMacApp *app, ServerManager *manager, WindowManager *windows,
                   QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_manager(manager)
    , m_windows(windows)
    , m_host(QGuiApplication::platformName() == QLatin1String("xcb")
             || QGuiApplication::platformName() == QLatin1String("cocoa"))
{
    m_menu.addAction(tr("Open"), this, &TrayIcon::openPanel);
    m_menu.addAction(tr("Pair New Device"), this, [this] {
        if (!m_manager->isPairing())
            m_manager->togglePairingMode();
        openPanel();
    });
    m_menu.addAction(tr("Settings..."), this,
                     [this] { m_windows->open(QStringLiteral("settings")); });
    m_menu.addSeparator();
    m_menu.addAction(tr("Quit QuivraMac"), qApp, &QCoreApplication::quit);

    m_pairingTick.setInterval(1000);
    connect(&m_pairingTick, &QTimer::timeout, this, &TrayIcon::update);
    connect(manager, &ServerManager::isRunningChanged, this, &TrayIcon::update);
    connect(manager, &ServerManager::isPairingChanged, this, &TrayIcon::update);
    connect(manager, &ServerManager::pairingExpiresAtChanged, this, &TrayIcon::update);
    connect(manager, &ServerManager::failureReasonChanged, this, &TrayIcon::update);
    connect(app, &QuivraMacApp::hasCompletedOnboardingChanged, this, &TrayIcon::update);
    connect(&m_host, &TrayHost::availableChanged, this, &TrayIcon::followHost);
    followHost();
}

TrayIcon::~TrayIcon() = default;

TrayIcon::State TrayIcon::state(bool hasCompletedOnboarding, bool pairing, bool running)
{
    if (!hasCompletedOnboarding)
        return State::NotSetUp;
    if (pairing)
        return State::Pairing;
    return running ? State::Running : State::Stopped;
}

QString TrayIcon::iconName(State state)
{
    switch (state) {
    case State::NotSetUp:
        return QStringLiteral("quivramac-setup-symbolic");
    case State::Pairing:
        return QStringLiteral("quivramac-pairing-symbolic");
    case State::Running:
        return QStringLiteral("quivramac-symbolic");
    case State::Stopped:
        break;
    }
    return QStringLiteral("quivramac-stopped-symbolic");
}

bool TrayIcon::trayRecoloursSymbolicIcons(bool statusNotifierItem, const QString &desktops)
{
    if (!statusNotifierItem)
        return false;
    const QStringList names = desktops.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return names.contains(QLatin1String("KDE"), Qt::CaseInsensitive)
        || names.contains(QLatin1String("GNOME"), Qt::CaseInsensitive);
}

QIcon TrayIcon::icon(State state, bool recoloured)
{
    // Each symbol has a drawing of the same name for trays that show pixels as they are.
    QString file = iconName(state);
    file.replace(QLatin1String("-symbolic"), QLatin1String("-tray"));
    QIcon drawing;
    for (const int side : { 16, 22, 24, 32, 48, 64 })
        drawing.addPixmap(QPixmap::fromImage(
            appicon::render(QStringLiteral(":/QuivraMac/Icons/%1.svg").arg(file), side)));
    // A theme name would make hosts that draw icons as they are show the pale symbolic grey.
    return recoloured ? QIcon::fromTheme(iconName(state), drawing) : drawing;
}

QString TrayIcon::toolTip(const Status &status)
{
    QString text = QStringLiteral("QuivraMac\n");
    if (status.running)
        text += tr("Server running on port %1").arg(status.port);
    else if (!status.failure.isEmpty())
        text += tr("Server not running: %1").arg(status.failure);
    else
        text += tr("Server off");
    if (!status.setUp)
        text += QLatin1Char('\n') + tr("Setup is not finished yet");
    if (status.secondsLeft >= 0)
        text += QLatin1Char('\n')
            + tr("Pairing: the code expires in %1").arg(formats::countdown(status.secondsLeft));
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
    update();
    m_tray->show();
}

void TrayIcon::onActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason != QSystemTrayIcon::Trigger && reason != QSystemTrayIcon::DoubleClick)
        return;
    m_cell = itemCell();
    // Hosts that report a double-click as two activations must not close what the first opened.
    const bool secondClick = reason == QSystemTrayIcon::DoubleClick
        || (m_openedByClick.isValid()
            && m_openedByClick.elapsed()
                < QGuiApplication::styleHints()->mouseDoubleClickInterval());
    if (secondClick && m_windows->isPanelVisible())
        return;
    m_windows->togglePanel(m_cell);
    if (m_windows->isPanelVisible())
        m_openedByClick.start();
    else
        m_openedByClick.invalidate();
}

QRect TrayIcon::itemCell() const
{
    const QRect geometry = m_tray ? m_tray->geometry() : QRect();
    if (geometry.isValid())
        return geometry;
    // A StatusNotifierItem host's activation point does not reach Qt: the pointer is where the
    // item was clicked, and a click anywhere on the same item keeps its panel where it was.
    const QPoint pointer = QCursor::pos();
    if (m_cell.contains(pointer))
        return m_cell;
    const QScreen *screen = QGuiApplication::screenAt(pointer);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    constexpr int usualItemSide = 24;
    return panelplacement::itemCell(pointer, screen->geometry(), screen->availableGeometry(),
                                    usualItemSide);
}

void TrayIcon::openPanel()
{
    if (!m_shown) {
        m_windows->openPanelAsWindow();
        return;
    }
    // A menu entry lies off the item: the panel goes where the item was last activated.
    if (!m_cell.isValid())
        m_cell = itemCell();
    m_windows->popOver(m_cell);
}

void TrayIcon::showPanel()
{
    const QQuickWindow *setup = m_windows->window(QStringLiteral("onboarding"));
    if (setup && setup->isVisible())
        m_windows->open(QStringLiteral("onboarding"));
    else
        openPanel();
}

void TrayIcon::update()
{
    const bool pairing = m_manager->isPairing();
    if (pairing != m_pairingTick.isActive())
        pairing ? m_pairingTick.start() : m_pairingTick.stop();
    if (!m_tray)
        return;
    const bool running = m_manager->isRunning();
    const bool setUp = m_app->hasCompletedOnboarding();
    const State shown = state(setUp, pairing, running);
    if (shown != m_state || m_tray->icon().isNull()) {
        m_state = shown;
        m_tray->setIcon(
            icon(shown,
                 trayRecoloursSymbolicIcons(m_statusNotifierItem,
                                            qEnvironmentVariable("XDG_CURRENT_DESKTOP"))));
    }
    const qint64 left =
        (m_manager->pairingExpiresAt() - QDateTime::currentMSecsSinceEpoch()) / 1000;
    m_tray->setToolTip(toolTip({ setUp, running, m_manager->port(), m_manager->failureReason(),
                                 pairing ? int(std::max<qint64>(left, 0)) : -1 }));
}
