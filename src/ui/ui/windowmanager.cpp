#include "ui/windowmanager.h"

#include "onboarding/onboardingflow.h"
#include "onboarding/systemcheck.h"
#include "ui/pairingcountdown.h"
#include "ui/promptcard.h"
#include "ui/symbolprovider.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickWindow>
#include <QScreen>

namespace {
const QHash<QString, QString> sources {
    { QStringLiteral("panel"), QStringLiteral("qrc:/QuivraMac/Ui/PanelWindow.qml") },
    { QStringLiteral("onboarding"), QStringLiteral("qrc:/QuivraMac/Ui/SetupWindow.qml") },
    { QStringLiteral("settings"), QStringLiteral("qrc:/QuivraMac/Ui/SettingsWindow.qml") },
};
}

WindowManager::WindowManager(ContextSetup setup, QObject *parent)
    : QObject(parent)
    , m_setup(std::move(setup))
{ }

WindowManager::~WindowManager() = default;

void WindowManager::registerTypes()
{
    qmlRegisterType<PairingCountdown>("QuivraMac.Core", 1, 0, "PairingCountdown");
    qmlRegisterType<PromptCard>("QuivraMac.Core", 1, 0, "PromptCard");
    const QString owned = QStringLiteral("made by the application");
    qmlRegisterUncreatableType<OnboardingFlow>("QuivraMac.Core", 1, 0, "OnboardingFlow", owned);
    qmlRegisterUncreatableType<SystemCheck>("QuivraMac.Core", 1, 0, "SystemCheck", owned);
}

QQuickWindow *WindowManager::create(const QString &id)
{
    if (QQuickWindow *existing = m_windows.value(id))
        return existing;
    if (!sources.contains(id))
        return nullptr;
    if (!m_engine) {
        registerTypes();
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_engine->addImportPath(QStringLiteral("qrc:/"));
        m_engine->addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
        m_setup(m_engine->rootContext());
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

void WindowManager::togglePanel(const QRect &besideIcon)
{
    QQuickWindow *panel = create(QStringLiteral("panel"));
    if (!panel)
        return;
    if (panel->isVisible()) {
        panel->hide();
        return;
    }
    panel->setProperty("popover", true);
    // Below the icon when the tray is at the top of the screen, above it otherwise.
    const QRect screen = QGuiApplication::screenAt(besideIcon.center())
        ? QGuiApplication::screenAt(besideIcon.center())->availableGeometry()
        : QGuiApplication::primaryScreen()->availableGeometry();
    QPoint at(besideIcon.center().x() - panel->width() / 2, besideIcon.bottom() + 4);
    if (besideIcon.center().y() > screen.center().y())
        at.setY(besideIcon.top() - panel->height() - 4);
    at.setX(std::clamp(at.x(), screen.left(), screen.right() - panel->width()));
    panel->setPosition(at);
    open(QStringLiteral("panel"));
}

void WindowManager::openPanelAsWindow()
{
    if (QQuickWindow *panel = create(QStringLiteral("panel"))) {
        panel->setProperty("popover", false);
        open(QStringLiteral("panel"));
    }
}
