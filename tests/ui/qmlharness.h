#pragma once

#include "server/servermanager.h"
#include "testsupport.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QApplication>
#include <QQuickWindow>

class QuivraMacApp;
class UiController;

namespace testsupport {

// The views with a real ServerManager (fake etserver, no automatic start), rendered offscreen
// with the software renderer, in the light or the dark scheme.
class QmlHarness
{
public:
    QmlHarness();
    ~QmlHarness();

    ServerManager &manager() { return *m_manager; }
    // Loads one view type of QuivraMac.Ui ("MenuBarView", "SettingsView", "SetupView") into a
    // window of its implicit size and shows it.
    QQuickItem *show(const QString &viewType);
    QImage grab();
    QQuickItem *view() const { return m_view; }
    void setDark(bool dark);

    template<typename T = QObject> T *find(const QString &objectName) const
    {
        return m_view ? m_view->findChild<T *>(objectName) : nullptr;
    }
    // Texts of every visible Text item, for "what is shown".
    QStringList visibleTexts() const;

private:
    std::shared_ptr<GuardedProcessTable> m_processes = std::make_shared<GuardedProcessTable>();
    std::unique_ptr<ServerManager> m_manager;
    std::unique_ptr<QuivraMacApp> m_app;
    std::unique_ptr<UiController> m_ui;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
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
        testsupport::quietConsole();                                                               \
        testsupport::prepareQuick();                                                               \
        QApplication app(argc, argv);                                                              \
        TestObject test;                                                                           \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
