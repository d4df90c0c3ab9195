#include "server/serverfailure.h"

#include "server/restartpolicy.h"

#include <QCoreApplication>

namespace serverfailure {

QString describe(const ServerFailure &failure, int port, const QString &fifo, bool translated)
{
    const auto text = [translated](const char *english) {
        return translated ? QCoreApplication::translate("serverfailure", english)
                          : QString::fromUtf8(english);
    };
    switch (failure.kind) {
    case ServerFailure::None:
        return {};
    case ServerFailure::NotInstalled:
        return text(
            QT_TRANSLATE_NOOP("serverfailure", "Eternal Terminal (etserver) is not installed"));
    case ServerFailure::LaunchFailed:
        return text(QT_TRANSLATE_NOOP("serverfailure", "etserver could not be started: %1"))
            .arg(failure.detail);
    case ServerFailure::PortInUse:
        return text(QT_TRANSLATE_NOOP("serverfailure", "Port %1 is in use")).arg(port);
    case ServerFailure::FifoTaken:
        return text(QT_TRANSLATE_NOOP("serverfailure", "%1 belongs to another user")).arg(fifo);
    case ServerFailure::Exited:
        break;
    }
    QString reason =
        (failure.crashed
             ? text(QT_TRANSLATE_NOOP("serverfailure", "etserver stopped unexpectedly (signal %1)"))
             : text(QT_TRANSLATE_NOOP("serverfailure",
                                      "etserver stopped unexpectedly (exit code %1)")))
            .arg(failure.exitCode);
    if (failure.gaveUp)
        reason += text(QT_TRANSLATE_NOOP("serverfailure",
                                         "; QuivraMac gave up restarting it after %1 stops in %2 "
                                         "minutes"))
                      .arg(RestartPolicy::maxStops)
                      .arg(RestartPolicy::window.count());
    return reason;
}

} // namespace serverfailure
