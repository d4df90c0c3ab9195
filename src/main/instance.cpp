#include "instance.h"

#include "control/controlservice.h"
#include "control/windowservice.h"
#include "platform/logging.h"
#include "platform/quitsignals.h"

#include <QCoreApplication>

Instance::Instance(bool hasDisplay)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quivra"));
    QCoreApplication::setApplicationName(QStringLiteral("QuivraMac"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUIVRA_VERSION));
    platform::quitOnTerminationSignals(*QCoreApplication::instance());

    // Before the server manager exists: a second instance must not clean up the first one's
    // server as if it were left over.
    const ControlService::Claim claim = ControlService::claimName();
    if (claim == ControlService::Claim::AlreadyRunning) {
        qCInfo(lcConsole).nospace().noquote() << "QuivraMac is already running";
        // Brought to the screen rather than left unseen, unless this launch has no screen either.
        if (!hasDisplay || WindowService::askToShowPanel() != WindowService::Answer::Headless) {
            m_exitCode = 0;
            return;
        }
        qCInfo(lcConsole).nospace().noquote() << WindowService::headlessMessage();
        m_exitCode = 1;
        return;
    }
    if (claim == ControlService::Claim::NoSessionBus)
        qCInfo(lcConsole).nospace().noquote()
            << "No session bus: QuivraMac cannot be controlled from the command line";

    if (qEnvironmentVariableIntValue("QUIVRA_LATENESS_PROBE") == 1)
        m_lateness = std::make_unique<LatenessProbe>();

    m_app = std::make_unique<QuivraMacApp>();
    ServerManager &manager = m_app->serverManager();
    if (claim == ControlService::Claim::Claimed)
        ControlService::publish(&manager);
    if (claim != ControlService::Claim::NoSessionBus)
        m_notifier = std::make_unique<PairingNotifier>(&manager);
}

Instance::~Instance() = default;
