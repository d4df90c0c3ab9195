// How ServerManager recovers without being asked: it restarts a server that stopped by itself,
// starts one once its taken port is free, and keeps trying to open the pairing port.
#include "platform/logging.h"
#include "server/serverchecks.h"
#include "server/servermanager.h"

void ServerManager::onServerExited(int code, bool crashed, bool current)
{
    qCInfo(lcLog).nospace().noquote()
        << QStringLiteral("[QuivraMac] Server exited with code %1").arg(code);
    if (!current)
        return;
    stopPairingListener();
    serverchecks::removeOwnSocket(serverFifo());
    // A restart cannot fix these: the port is watched instead, the socket needs its owner.
    if (m_portTaken || serverchecks::portInUse(quint16(m_port))) {
        setFailure({ ServerFailure::PortInUse, code, {}, crashed });
        return waitForPort();
    }
    if (serverchecks::ownedByAnotherUser(serverFifo(), serverchecks::currentUser())) {
        setFailure({ ServerFailure::FifoTaken, code, {}, crashed });
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Not restarting: " << m_failureReason;
        return;
    }
    const auto pause = m_restarts.onUnexpectedStop(m_env.steadyNow());
    setFailure({ ServerFailure::Exited, code, {}, crashed, !pause });
    if (!pause) {
        qCInfo(lcConsole).nospace().noquote() << "Not restarting: " << m_failureReason;
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Not restarting: " << m_failureReason;
        return;
    }
    qCInfo(lcLog).nospace().noquote()
        << QStringLiteral("[QuivraMac] Restarting server in %1 s (unexpected stop %2 of %3 "
                          "allowed within %4 minutes)")
               .arg(pause->count())
               .arg(m_restarts.recentStops())
               .arg(RestartPolicy::maxStops - 1)
               .arg(RestartPolicy::window.count());
    m_restartTimer.start(*pause);
}

std::optional<std::chrono::milliseconds> ServerManager::pendingRestart() const
{
    if (!m_restartTimer.isActive())
        return std::nullopt;
    return m_restartTimer.interval();
}

void ServerManager::notStarted(const ServerFailure &failure)
{
    setFailure(failure);
    qCInfo(lcConsole).nospace().noquote() << "Server not started: " << m_failureReason;
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Not started: " << m_failureReason;
}

void ServerManager::waitForPort()
{
    qCInfo(lcLog).nospace().noquote()
        << QStringLiteral("[QuivraMac] Starting the server once port %1 is free (checked every "
                          "%2 s)")
               .arg(m_port)
               .arg(portRecheckInterval.count());
    m_portWatch.start(portRecheckInterval);
}

void ServerManager::onPortCheckDue()
{
    if (serverchecks::portInUse(quint16(m_port)))
        return m_portWatch.start(portRecheckInterval);
    qCInfo(lcLog).nospace().noquote() << QStringLiteral("[QuivraMac] Port %1 is free").arg(m_port);
    launchServer();
}

bool ServerManager::cancelRecovery()
{
    const bool pending = m_restartTimer.isActive() || m_portWatch.isActive();
    m_restartTimer.stop();
    m_portWatch.stop();
    m_restarts.reset();
    return pending;
}

void ServerManager::onPairingListenerFailed()
{
    const bool taken = m_pairingListener->serverError() == QAbstractSocket::AddressInUseError;
    m_listenerProblem = taken
        ? QStringLiteral("Port %1 is in use, so phones cannot pair").arg(m_pairingListener->port())
        : QStringLiteral("Phones cannot pair: %1").arg(m_pairingListener->errorString());
    qCInfo(lcLog).nospace().noquote() << QStringLiteral("[QuivraMac] %1; trying again every %2 s")
                                             .arg(m_listenerProblem)
                                             .arg(portRecheckInterval.count());
    m_listenerRetry.start(portRecheckInterval);
    updateFailureReason();
}

void ServerManager::retryPairingListener()
{
    if (!m_pairingListener || !isRunning())
        return;
    m_pairingListener->start(m_env.pairingPort, m_env.advertise);
    if (!m_pairingListener->isListening())
        return m_listenerRetry.start(portRecheckInterval);
    m_listenerProblem.clear();
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Bonjour listener started (iOS can discover)";
    updateFailureReason();
}
