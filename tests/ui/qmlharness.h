#pragma once

#include "onboarding/scheduler.h"
#include "server/servermanager.h"
#include "testsupport.h"

#include <QApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTcpServer>

#include <list>
#include <utility>

class OnboardingFlow;
class QuivraMacApp;
class SystemCheck;
class UiController;

namespace testsupport {

// The views with a real ServerManager (fake etserver, no automatic start), rendered offscreen
// with the software renderer, in the light or the dark scheme.
class QmlHarness
{
public:
    // `adjust` changes the machine the manager sees before it is made.
    explicit QmlHarness(const std::function<void(ServerEnvironment &)> &adjust = {});
    // A machine where etserver is nowhere to be found.
    static void withoutEtserver(ServerEnvironment &env)
    {
        env.locateExecutable = [] { return QString(); };
    }
    ~QmlHarness();

    ServerManager &manager() { return *m_manager; }
    OnboardingFlow &onboarding() { return *m_onboarding; }
    SystemCheck &systemCheck() { return *m_systemCheck; }
    QuivraMacApp &app() { return *m_app; }
    UiController &ui() { return *m_ui; }
    // A phone paired on that day, as a pairing leaves it: its key installed and recorded.
    void pairPhone(const QString &name, QDate day);
    // The system check's pauses wait here until run; each run may schedule more.
    int runScheduled();
    // Runs the earliest waiting pause only; false when none waits.
    bool runOne();
    std::chrono::milliseconds scheduledTotal() const { return m_scheduledTotal; }
    // Its SSH probe asks a listener of the harness, open unless closed.
    void closeSshDaemon() { m_sshd.close(); }
    // Loads one view type of QuivraMac.Ui ("MenuBarView", "SettingsView", "SetupView") into a
    // window of its implicit size and shows it.
    QQuickItem *show(const QString &viewType);
    // The same in a window of its own, beside the one show() made.
    QQuickItem *showAlso(const QString &viewType);
    // Moves the clock the pairing code's lifetime is measured with. Countdowns made by the
    // harness tick only when a test calls tick().
    void advanceClock(std::chrono::seconds by) { *m_offset += by; }
    // The view at its implicit size, or that much shorter.
    QImage grab(int shorterBy = 0);
    QQuickWindow *window() const { return m_window.get(); }
    QQuickItem *view() const { return m_view; }
    void setDark(bool dark);

    // Also finds the delegates of lists, which are items of the view but not its children.
    template<typename T = QObject> T *find(const QString &objectName) const
    {
        if (!m_view)
            return nullptr;
        if (T *found = m_view->findChild<T *>(objectName))
            return found;
        return qobject_cast<T *>(findItem(m_view, objectName));
    }
    // Texts of every visible Text item, for "what is shown".
    QStringList visibleTexts() const;
    // The code a row of digit boxes shows.
    QString shownCode(const QString &rowName) const;
    // What the views' code complained of since the last call, such as a name it could not
    // resolve.
    QStringList takeQmlWarnings() { return std::exchange(m_warnings, {}); }

private:
    static QQuickItem *findItem(QQuickItem *under, const QString &objectName);
    QQuickItem *load(const QString &viewType, QQuickWindow *window);

    std::shared_ptr<GuardedProcessTable> m_processes = std::make_shared<GuardedProcessTable>();
    std::shared_ptr<std::chrono::seconds> m_offset = std::make_shared<std::chrono::seconds>(0);
    std::unique_ptr<ServerManager> m_manager;
    std::unique_ptr<QuivraMacApp> m_app;
    std::unique_ptr<UiController> m_ui;
    QTcpServer m_sshd;
    QList<std::pair<QPointer<QObject>, std::function<void()>>> m_scheduled;
    std::chrono::milliseconds m_scheduledTotal { 0 };
    std::unique_ptr<SystemCheck> m_systemCheck;
    std::unique_ptr<OnboardingFlow> m_onboarding;
    std::unique_ptr<QQmlEngine> m_engine;
    QStringList m_warnings;
    std::unique_ptr<QQuickWindow> m_window;
    std::list<QQuickWindow> m_otherWindows;
    QQuickItem *m_view = nullptr;
};

// Before the application object: offscreen, software-rendered Qt Quick.
void prepareQuick();

} // namespace testsupport

// QUIVRA_TEST_MAIN for the views: a GUI application, offscreen, software-rendered.
#define QUIVRA_QUICK_TEST_MAIN(TestObject)                                                         \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        testsupport::isolateHome();                                                                \
        testsupport::prepareQuick();                                                               \
        QApplication app(argc, argv);                                                              \
        TestObject test;                                                                           \
        QTest::qInit(&test, argc, argv);                                                           \
        testsupport::routeLogging();                                                               \
        const int failed = QTest::qRun();                                                          \
        QTest::qCleanup();                                                                         \
        return failed;                                                                             \
    }
