#include "server/serverfailure.h"

#include "server/restartpolicy.h"

namespace serverfailure {

QString describe(const ServerFailure &failure, int port, const QString &fifo)
{
    switch (failure.kind) {
    case ServerFailure::None:
        return {};
    case ServerFailure::NotInstalled:
        return QStringLiteral("Eternal Terminal (etserver) is not installed");
    case ServerFailure::LaunchFailed:
        return QStringLiteral("etserver could not be started: %1").arg(failure.detail);
    case ServerFailure::PortInUse:
        return QStringLiteral("Port %1 is in use").arg(port);
    case ServerFailure::FifoTaken:
        return QStringLiteral("%1 belongs to another user").arg(fifo);
    case ServerFailure::Exited:
        break;
    }
    QString reason =
        QStringLiteral("etserver stopped unexpectedly (%1 %2)")
            .arg(failure.crashed ? QStringLiteral("signal") : QStringLiteral("exit code"))
            .arg(failure.exitCode);
    if (failure.gaveUp)
        reason += QStringLiteral("; QuivraMac gave up restarting it after %1 stops in %2 minutes")
                      .arg(RestartPolicy::maxStops)
                      .arg(RestartPolicy::window.count());
    return reason;
}

} // namespace serverfailure
