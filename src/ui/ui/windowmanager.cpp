#include "ui/windowmanager.h"

#include "ui/panelplacement.h"
#include "ui/symbolprovider.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QScreen>

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

WindowManager::WindowManager(const ViewObjects &objects, QObject *parent)
    : QObject(parent)
    , m_objects(objects)
{ }

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
    return window;
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
