#include "control/windowservice.h"
#include "displayplatform.h"
#include "instance.h"
#include "onboarding/onboardingflow.h"
#include "onboarding/systemcheck.h"
#include "panelprobe.h"
#include "platform/logging.h"
#include "platform/translations.h"
#include "ui/trayicon.h"
#include "ui/uicontroller.h"
#include "ui/windowmanager.h"

#include <QApplication>
#include <QIcon>
#include <QQuickStyle>
#include <QQuickWindow>

// The app with its windows and tray item, loaded by quivramac only where there is a display.
extern "C" Q_DECL_EXPORT int quivramacRunWithWindows(int *argc, char **argv)
{
    logging::install();
    if (!displayplatform::choose())
        return 1;
    QApplication app(*argc, argv);
    translations::install();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/QuivraMac/Icons/quivramac.svg")));
    // Closing the last window leaves the app in the menu bar.
    QApplication::setQuitOnLastWindowClosed(false);
    displayplatform::explainFallback();

    Instance instance(true);
    if (const std::optional<int> code = instance.exitCode())
        return *code;
    ServerManager &manager = instance.manager();

    QQuickStyle::setStyle(QStringLiteral("Basic"));
    // A few small windows draw fine without the GPU, and the software renderer costs about a
    // third of the memory (49 MB against 142 MB with the panel open, measured under Xvfb).
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    OnboardingFlow onboarding(&manager, &instance.app());
    SystemCheck systemCheck(&manager);
    UiController ui(&manager);
    // After everything the views read, so the windows and their engine are gone before any of it.
    WindowManager windows({ &manager, &instance.app(), &ui, &onboarding, &systemCheck });
    QObject::connect(&ui, &UiController::windowRequested, &windows, &WindowManager::open);

    if (!instance.app().hasCompletedOnboarding())
        windows.open(QStringLiteral("onboarding"));
    // After the first-run window, so that a panel opened as a window finds its place beside it.
    TrayIcon tray(&instance.app(), &manager, &windows);
    std::unique_ptr<PanelProbe> panelProbe;
    if (const QString probe = qEnvironmentVariable("QUIVRA_BENCH_PANEL"); !probe.isEmpty())
        panelProbe = std::make_unique<PanelProbe>(&windows, probe == QLatin1String("cold"));
    const WindowService windowService([&tray, &panelProbe] {
        if (panelProbe)
            panelProbe->show([&tray] { tray.showPanel(); });
        else
            tray.showPanel();
    });
    // For the benchmarks, which have no way to click: the settings window on its Logs tab.
    if (qEnvironmentVariable("QUIVRA_BENCH_WINDOW") == QLatin1String("logs"))
        ui.openSettings(UiController::LogsTab);
    return app.exec();
}
