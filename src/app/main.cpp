#include "app/quivramacapp.h"
#include "control/controlservice.h"
#include "platform/console.h"
#include "platform/quitsignals.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quivra"));
    QCoreApplication::setApplicationName(QStringLiteral("QuivraMac"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUIVRA_VERSION));
    platform::quitOnTerminationSignals(app);

    // Before the server manager exists: a second instance must not clean up the first one's
    // server as if it were left over.
    const ControlService::Claim claim = ControlService::claimName();
    if (claim == ControlService::Claim::AlreadyRunning) {
        console::line(QStringLiteral("QuivraMac is already running"));
        return 0;
    }
    if (claim == ControlService::Claim::NoSessionBus)
        console::line(
            QStringLiteral("No session bus: QuivraMac cannot be controlled from the command line"));

    QuivraMacApp quivra;
    if (claim == ControlService::Claim::Claimed)
        ControlService::publish(&quivra.serverManager());
    quivra.serverManager();
    return app.exec();
}
