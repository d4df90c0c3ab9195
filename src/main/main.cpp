#include "app/quivramacapp.h"
#include "control/controlservice.h"
#include "control/pairingnotifier.h"
#include "control/windowservice.h"
#include "displayplatform.h"
#include "latenessprobe.h"
#include "onboarding/onboardingflow.h"
#include "onboarding/systemcheck.h"
#include "platform/logging.h"
#include "platform/quitsignals.h"
#include "ui/trayicon.h"
#include "ui/uicontroller.h"
#include "ui/windowmanager.h"

#include <QApplication>
#include <QIcon>
#include <QQuickStyle>
#include <QQuickWindow>

int main(int argc, char *argv[])
{
    logging::install();
    if (!displayplatform::choose())
        return 1;
    QApplication app(argc, argv);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/QuivraMac/Icons/quivramac.svg")));
    QApplication::setOrganizationName(QStringLiteral("Quivra"));
    QApplication::setApplicationName(QStringLiteral("QuivraMac"));
    QApplication::setApplicationVersion(QStringLiteral(QUIVRA_VERSION));
    // Closing the last window leaves the app in the menu bar.
    QApplication::setQuitOnLastWindowClosed(false);
    platform::quitOnTerminationSignals(app);
    displayplatform::explainFallback();
    const bool headless = QGuiApplication::platformName() == QLatin1String("offscreen")
        || QGuiApplication::platformName() == QLatin1String("minimal");

    // Before the server manager exists: a second instance must not clean up the first one's
    // server as if it were left over.
    const ControlService::Claim claim = ControlService::claimName();
    if (claim == ControlService::Claim::AlreadyRunning) {
        qCInfo(lcConsole).nospace().noquote() << "QuivraMac is already running";
        // Brought to the screen rather than left unseen, unless this launch has no screen either.
        if (headless || WindowService::askToShowPanel() != WindowService::Answer::Headless)
            return 0;
        qCInfo(lcConsole).nospace().noquote() << WindowService::headlessMessage();
        return 1;
    }
    if (claim == ControlService::Claim::NoSessionBus)
        qCInfo(lcConsole).nospace().noquote()
            << "No session bus: QuivraMac cannot be controlled from the command line";

    std::unique_ptr<LatenessProbe> lateness;
    if (qEnvironmentVariableIntValue("QUIVRA_LATENESS_PROBE") == 1)
        lateness = std::make_unique<LatenessProbe>();

    QuivraMacApp quivra;
    ServerManager &manager = quivra.serverManager();
    if (claim == ControlService::Claim::Claimed)
        ControlService::publish(&manager);
    std::unique_ptr<PairingNotifier> notifier;
    if (claim != ControlService::Claim::NoSessionBus)
        notifier = std::make_unique<PairingNotifier>(&manager);

    if (headless) {
        const WindowService noWindows({});
        return app.exec();
    }

    QQuickStyle::setStyle(QStringLiteral("Basic"));
    // A few small windows draw fine without the GPU, and the software renderer costs about a
    // third of the memory (49 MB against 142 MB with the panel open, measured under Xvfb).
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    OnboardingFlow onboarding(&manager, &quivra);
    SystemCheck systemCheck(&manager);
    UiController ui(&manager);
    // After everything the views read, so the windows and their engine are gone before any of it.
    WindowManager windows({ &manager, &quivra, &ui, &onboarding, &systemCheck });
    QObject::connect(&ui, &UiController::windowRequested, &windows, &WindowManager::open);

    if (!quivra.hasCompletedOnboarding())
        windows.open(QStringLiteral("onboarding"));
    // After the first-run window, so that a panel opened as a window finds its place beside it.
    TrayIcon tray(&quivra, &manager, &windows);
    const WindowService windowService([&windows] { windows.showPanel(); });
    // For the benchmarks, which have no way to click: the settings window on its Logs tab.
    if (qEnvironmentVariable("QUIVRA_BENCH_WINDOW") == QLatin1String("logs")) {
        windows.open(QStringLiteral("settings"));
        if (auto *view = windows.window(QStringLiteral("settings"))
                             ->findChild<QObject *>(QStringLiteral("settingsView")))
            view->setProperty("selectedTab", 1);
    }
    return app.exec();
}
