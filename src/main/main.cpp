#include "control/windowservice.h"
#include "instance.h"
#include "launch.h"
#include "platform/logging.h"
#include "windowsmodule.h"

#include <QCoreApplication>

// Without a display the app runs here on QtCore, QtNetwork and QtDBus alone; with one it hands
// over to its windows module.
int main(int argc, char *argv[])
{
    const launch::Options options = launch::parse(argc, argv);
    if (options.help) {
        launch::printHelp();
        return 0;
    }
    if (options.version) {
        launch::printVersion();
        return 0;
    }
    QString whyNoWindows;
    if (!options.headless && launch::hasDisplay()) {
        if (const windowsmodule::Run run = windowsmodule::load(&whyNoWindows))
            return run(&argc, argv);
    }

    logging::install();
    if (!whyNoWindows.isEmpty())
        qCInfo(lcConsole).nospace().noquote()
            << "QuivraMac runs without windows: they could not be loaded (" << whyNoWindows << ")";
    QCoreApplication app(argc, argv);
    Instance instance(false);
    if (const std::optional<int> code = instance.exitCode())
        return *code;
    const WindowService noWindows({});
    return app.exec();
}
