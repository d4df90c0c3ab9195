#include "ui/windowmanager.h"

#include "platform/logging.h"
#include "platform/residentmemory.h"
#include "ui/panelplacement.h"
#include "ui/symbolprovider.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>

// Generated with module QuivraMac.Ui. Referring to it keeps the module's type registration in
// the static link; the engine runs it when a view first imports the module.
void qml_register_types_QuivraMac_Ui();

namespace {
const QHash<QString, QString> sources {
    { QStringLiteral("panel"), QStringLiteral("qrc:/QuivraMac/Ui/PanelWindow.qml") },
    { QStringLiteral("onboarding"), QStringLiteral("qrc:/QuivraMac/Ui/SetupWindow.qml") },
    { QStringLiteral("settings"), QStringLiteral("qrc:/QuivraMac/Ui/SettingsWindow.qml") },
};
}

WindowManager::WindowManager(const ViewObjects &objects, ClockTimer::Clock clock,
                             std::chrono::milliseconds longestSleep, QObject *parent)
    : QObject(parent)
    , m_objects(objects)
    , m_release(std::move(clock), longestSleep)
{
    connect(&m_release, &ClockTimer::timeout, this, &WindowManager::release);
}

WindowManager::~WindowManager()
{
    // Bindings of a window outliving its engine would run against a torn-down context.
    for (const QPointer<QQuickWindow> &window : std::as_const(m_windows))
        delete window.get();
    m_engine.reset();
}

void WindowManager::prepareEngine(QQmlEngine *engine, const ViewObjects &objects)
{
    [[maybe_unused]] volatile auto keepRegistration = &qml_register_types_QuivraMac_Ui;
    engine->addImportPath(QStringLiteral("qrc:/"));
    engine->addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
    objects.provideTo(engine);
}

QQuickWindow *WindowManager::create(const QString &id)
{
    if (QQuickWindow *existing = m_windows.value(id))
        return existing;
    if (!sources.contains(id))
        return nullptr;
    if (!m_engine) {
        m_engine = std::make_unique<QQmlApplicationEngine>();
        prepareEngine(m_engine.get(), m_objects);
    }
    QQmlComponent component(m_engine.get(), QUrl(sources.value(id)));
    auto *window = qobject_cast<QQuickWindow *>(component.create());
    if (!window) {
        qWarning().noquote() << component.errorString();
        return nullptr;
    }
    window->QObject::setParent(this);
    m_windows.insert(id, window);
    connect(window, &QWindow::visibleChanged, this, &WindowManager::followVisibility);
    return window;
}

bool WindowManager::anyVisible() const
{
    return std::any_of(
        m_windows.cbegin(), m_windows.cend(),
        [](const QPointer<QQuickWindow> &window) { return window && window->isVisible(); });
}

void WindowManager::followVisibility()
{
    if (anyVisible())
        m_release.stop();
    else if (m_engine && !m_release.isActive())
        m_release.start(releaseDelay);
}

void WindowManager::release()
{
    m_release.stop();
    if (!m_engine || anyVisible())
        return;
    // The windows before their engine, as in the destructor; each window takes its scene graph.
    for (const QPointer<QQuickWindow> &window : std::as_const(m_windows))
        delete window.get();
    m_windows.clear();
    m_engine.reset();
    qCInfo(lcConsole).nospace().noquote() << "Windows closed a while ago: their memory is released";
    // On the next turn, once the objects deleted later are gone too.
    QTimer::singleShot(0, this, [this] {
        platform::releaseUnusedMemory();
        Q_EMIT released();
    });
}

void WindowManager::open(const QString &id)
{
    QQuickWindow *window = create(id);
    if (!window)
        return;
    if (!window->isVisible() && id != QLatin1String("panel") && window->screen()) {
        const QRect screen = window->screen()->availableGeometry();
        window->setPosition(screen.center() - QPoint(window->width() / 2, window->height() / 2));
    }
    window->show();
    window->raise();
    window->requestActivate();
}

void WindowManager::togglePanel(const QRect &anchor)
{
    if (isPanelVisible())
        window(QStringLiteral("panel"))->hide();
    else
        popOver(anchor);
}

bool WindowManager::isPanelVisible() const
{
    const QQuickWindow *panel = window(QStringLiteral("panel"));
    return panel && panel->isVisible();
}

void WindowManager::popOver(const QRect &anchor)
{
    QQuickWindow *panel = create(QStringLiteral("panel"));
    if (!panel)
        return;
    if (!canPlaceWindows()) {
        openPanelAsWindow();
        return;
    }
    panel->setProperty("popover", true);
    // Hidden a moment ago, it still counts as active until X11's late report of the focus loss.
    panel->setProperty("staleFocusLoss", !panel->isVisible() && panel->isActive());
    const QScreen *screen = QGuiApplication::screenAt(anchor.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    panel->setPosition(panelplacement::beside(anchor, panel->size(), screen->availableGeometry()));
    open(QStringLiteral("panel"));
}

void WindowManager::openPanelAsWindow()
{
    QQuickWindow *panel = create(QStringLiteral("panel"));
    if (!panel)
        return;
    panel->setProperty("popover", false);
    // The first-run window opens in the middle of the screen; the panel must not hide behind it.
    const QQuickWindow *setup = window(QStringLiteral("onboarding"));
    if (!panel->isVisible() && setup && setup->isVisible() && canPlaceWindows()) {
        panel->setPosition(panelplacement::besideWindow(setup->frameGeometry(), panel->size(),
                                                        setup->screen()->availableGeometry()));
    }
    open(QStringLiteral("panel"));
}

void WindowManager::closePanelWindow()
{
    QQuickWindow *panel = window(QStringLiteral("panel"));
    if (panel && !panel->property("popover").toBool())
        panel->close();
}

bool WindowManager::canPlaceWindows()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}
