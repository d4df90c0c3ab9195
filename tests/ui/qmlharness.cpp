#include "qmlharness.h"

#include "app/quivramacapp.h"
#include "onboarding/onboardingflow.h"
#include "onboarding/systemcheck.h"
#include "pairingfixture.h"
#include "platform/userdefaults.h"
#include "server/authorizedkeys.h"
#include "ui/pairingcountdown.h"
#include "ui/uicontroller.h"
#include "ui/windowmanager.h"

#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlComponent>
#include <QQuickStyle>

namespace testsupport {

void prepareQuick()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
}

QmlHarness::QmlHarness(const std::function<void(ServerEnvironment &)> &adjust)
{
    userdefaults::setValue(QStringLiteral("autoStartServer"), false);
    ServerEnvironment env = environment(m_processes);
    env.localIP = [] { return QStringLiteral("192.168.1.20"); };
    env.diagnostics.interfaces = [] {
        return QList<net::InterfaceAddress> { { "lo", true, "127.0.0.1" },
                                              { "eth0", true, "192.168.1.20" } };
    };
    // Installed, whatever this machine has: the views' tests stop the daemon, not remove it.
    env.diagnostics.sshServer = [] { return platform::SshServerInstall { true, "ssh" }; };
    env.now = [offset = m_offset] { return std::chrono::system_clock::now() + *offset; };
    PairingCountdown::manualTicks(true);
    if (adjust)
        adjust(env);
    m_manager = std::make_unique<ServerManager>(std::move(env));
    // A start waits for the clean-up of earlier servers; views are shown after it.
    testsupport::awaitCleanup(*m_manager);
    m_app = std::make_unique<QuivraMacApp>();
    m_sshd.listen(QHostAddress::LocalHost);
    m_systemCheck = std::make_unique<SystemCheck>(
        m_manager.get(),
        [this](QObject *context, std::chrono::milliseconds delay, std::function<void()> work) {
            m_scheduledTotal += delay;
            m_scheduled.append({ context, std::move(work) });
        },
        QStringLiteral("127.0.0.1"), m_sshd.serverPort());
    m_onboarding = std::make_unique<OnboardingFlow>(m_manager.get(), m_app.get());
    m_ui = std::make_unique<UiController>(m_manager.get());
    // A fresh engine with this harness's objects as its singletons.
    m_engine = std::make_unique<QQmlEngine>();
    QObject::connect(m_engine.get(), &QQmlEngine::warnings, m_engine.get(),
                     [this](const QList<QQmlError> &warnings) {
                         for (const QQmlError &warning : warnings)
                             m_warnings.append(warning.toString());
                     });
    WindowManager::prepareEngine(
        m_engine.get(),
        { m_manager.get(), m_app.get(), m_ui.get(), m_onboarding.get(), m_systemCheck.get() });
}

QmlHarness::~QmlHarness()
{
    m_otherWindows.clear();
    m_window.reset();
    m_manager->supervisor().stopForQuit();
}

QQuickItem *QmlHarness::show(const QString &viewType)
{
    m_view = nullptr;
    m_window.reset();
    m_window = std::make_unique<QQuickWindow>();
    m_view = load(viewType, m_window.get());
    return m_view;
}

QQuickItem *QmlHarness::showAlso(const QString &viewType)
{
    return load(viewType, &m_otherWindows.emplace_back());
}

QQuickItem *QmlHarness::load(const QString &viewType, QQuickWindow *window)
{
    QQmlComponent component(m_engine.get());
    component.setData("import QuivraMac.Ui\n" + viewType.toUtf8() + " {}\n", QUrl());
    auto *view = qobject_cast<QQuickItem *>(component.create());
    if (!view) {
        qWarning().noquote() << component.errorString();
        return nullptr;
    }
    view->setParent(window);
    view->setParentItem(window->contentItem());
    QObject::connect(view, &QQuickItem::implicitHeightChanged, window, [view, window] {
        window->resize(int(view->implicitWidth()), int(view->implicitHeight()));
        view->setSize(window->size());
    });
    window->resize(int(view->implicitWidth()), int(view->implicitHeight()));
    view->setSize(window->size());
    window->show();
    return view;
}

bool QmlHarness::runOne()
{
    if (m_scheduled.isEmpty())
        return false;
    const auto [context, work] = m_scheduled.takeFirst();
    if (context)
        work();
    return true;
}

int QmlHarness::runScheduled()
{
    int ran = 0;
    while (runOne())
        ++ran;
    return ran;
}

QQuickItem *QmlHarness::findItem(QQuickItem *under, const QString &objectName)
{
    const auto children = under->childItems();
    for (QQuickItem *child : children) {
        if (child->objectName() == objectName)
            return child;
        if (QQuickItem *found = findItem(child, objectName))
            return found;
    }
    return nullptr;
}

void QmlHarness::pairPhone(const QString &name, QDate day)
{
    const QString key = QString::fromLatin1(ed25519Key("mobile"));
    authorizedkeys::install(QDir::homePath(), key, day);
    m_manager->phones().devices().record(name, key, "192.168.1.31", QDateTime(day, QTime(9, 30)));
}

QImage QmlHarness::grab(int shorterBy)
{
    m_view->setSize(QSizeF(m_view->implicitWidth(), m_view->implicitHeight() - shorterBy));
    m_window->resize(m_view->size().toSize());
    return m_window->grabWindow();
}

void QmlHarness::setDark(bool dark)
{
    QPalette palette;
    if (dark) {
        palette.setColor(QPalette::Window, QColor("#1e1e20"));
        palette.setColor(QPalette::WindowText, Qt::white);
        palette.setColor(QPalette::Base, QColor("#1c1c1e"));
        palette.setColor(QPalette::Text, Qt::white);
        palette.setColor(QPalette::Button, QColor("#3a3a3c"));
        palette.setColor(QPalette::ButtonText, Qt::white);
    }
    QGuiApplication::setPalette(palette);
}

QString QmlHarness::shownCode(const QString &rowName) const
{
    QString code;
    if (auto *row = find<QQuickItem>(rowName)) {
        for (QQuickItem *box : row->childItems()) {
            if (!box->childItems().isEmpty())
                code += box->childItems().constFirst()->property("text").toString();
        }
    }
    return code;
}

QStringList QmlHarness::visibleTexts() const
{
    QStringList texts;
    const QList<QQuickItem *> items = m_view->findChildren<QQuickItem *>();
    for (QQuickItem *item : items) {
        if (!item->isVisible() || !item->metaObject()->className())
            continue;
        const QString kind = QString::fromLatin1(item->metaObject()->className());
        if (kind.startsWith(QLatin1String("QQuickText")))
            texts.append(item->property("text").toString());
    }
    return texts;
}

} // namespace testsupport
