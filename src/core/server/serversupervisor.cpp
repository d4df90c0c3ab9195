#include "server/serversupervisor.h"

#include "platform/logging.h"
#include "platform/wording.h"
#include "server/serverchecks.h"
#include "server/serverlog.h"

#include <QFile>

ServerSupervisor::ServerSupervisor(const ServerEnvironment &environment, QObject *parent)
    : QObject(parent)
    , m_env(environment)
    , m_restartTimer(m_env.steadyNow, m_env.longestSleep)
    , m_portWatch(m_env.steadyNow, m_env.longestSleep)
    , m_process(m_env.uptimeInterval)
    , m_orphans(m_env.processes, m_env.pgrepProgram, pidFilePath())
{
    connect(&m_process, &ServerProcess::runningChanged, this, &ServerSupervisor::runningChanged);
    connect(&m_process, &ServerProcess::uptimeChanged, this, &ServerSupervisor::uptimeChanged);
    connect(&m_process, &ServerProcess::output, this, &ServerSupervisor::onOutput);
    connect(&m_process, &ServerProcess::exited, this, &ServerSupervisor::onExited);
    connect(&m_process, &ServerProcess::stopped, this, &ServerSupervisor::finishStop);
    connect(&m_restartTimer, &ClockTimer::timeout, this, &ServerSupervisor::launch);
    connect(&m_portWatch, &ClockTimer::timeout, this, &ServerSupervisor::onPortCheckDue);
    connect(&m_orphans, &OrphanReaper::finished, this, [this] {
        if (std::exchange(m_startWhenReady, false))
            launch();
    });
}

QString ServerSupervisor::pidFilePath() const
{
    return supportDirectory() + QStringLiteral("/etserver.pid");
}

QStringList ServerSupervisor::arguments() const
{
    const QString support = supportDirectory();
    return { QStringLiteral("--port"),
             QString::number(m_port),
             QStringLiteral("--pidfile"),
             support + QStringLiteral("/etserver.pid"),
             QStringLiteral("--logdir"),
             support,
             QStringLiteral("--serverfifo"),
             serverFifo(),
             QStringLiteral("--logtostdout"),
             QStringLiteral("--verbose"),
             QStringLiteral("1") };
}

void ServerSupervisor::start()
{
    cancelRecovery();
    launch();
}

void ServerSupervisor::launch()
{
    const QString program = executable();
    if (program.isEmpty()) {
        qCInfo(lcConsole).nospace().noquote() << "Error: etserver not found in bundle";
        qCInfo(lcLog).nospace().noquote()
            << "[QuivraMac] Error: etserver binary not found in app bundle";
        setFailure({ ServerFailure::NotInstalled });
        return;
    }
    // A server from an earlier run, or the one being stopped, still holds the port.
    if (m_orphans.isCleaning() || m_process.isStopping()) {
        m_startWhenReady = true;
        return;
    }
    if (m_process.isRunning()) {
        stop();
        m_startWhenReady = true;
        return;
    }

    const QString support = supportDirectory();
    const QString fifo = QStringLiteral("%1 (%2 chars)").arg(serverFifo()).arg(serverFifo().size());
    qCInfo(lcConsole).nospace().noquote() << "App support directory: " << support;
    qCInfo(lcConsole).nospace().noquote() << "FIFO path: " << fifo;
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Support dir: " << support;
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] FIFO path: " << fifo;
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("Starting Quivra Server from %1...").arg(program);
    qCInfo(lcLog).nospace().noquote()
        << QStringLiteral("[QuivraMac] Starting server on port %1...").arg(m_port);

    serverchecks::pruneServerLogs(support);
    if (serverchecks::ownedByAnotherUser(serverFifo(), serverchecks::currentUser()))
        return notStarted({ ServerFailure::FifoTaken });
    if (serverchecks::portInUse(quint16(m_port))) {
        notStarted({ ServerFailure::PortInUse });
        return waitForPort();
    }
    m_portTaken = false;
    if (const auto error = m_process.launch(program, arguments())) {
        qCInfo(lcConsole).nospace().noquote() << "Failed to launch server: " << *error;
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Failed to start: " << *error;
        setFailure({ ServerFailure::LaunchFailed, -1, *error });
        return;
    }
    setFailure({});
}

void ServerSupervisor::stop()
{
    const bool wasRecovering = cancelRecovery();
    m_startWhenReady = false;
    if (m_process.isStopping())
        return;
    if (!m_process.process()) {
        // A stop while waiting to start again ends the wait, and what it waited for is no
        // longer a failure.
        if (wasRecovering)
            setFailure({});
        return;
    }
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("Stopping Quivra Server (PID %1)...").arg(m_process.pid());
    qCInfo(lcLog).nospace().noquote()
        << QStringLiteral("[QuivraMac] Stopping server (PID %1)...").arg(m_process.pid());
    Q_EMIT wentDown();
    m_process.stop(stopGrace, [] {
        qCInfo(lcLog).nospace().noquote()
            << "[QuivraMac] Force killing server (didn't exit gracefully)";
    });
}

void ServerSupervisor::finishStop()
{
    QFile::remove(pidFilePath());
    serverchecks::removeStaleSocket(serverFifo());
    setFailure({});
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Server stopped";
    if (std::exchange(m_startWhenReady, false))
        launch();
}

void ServerSupervisor::stopForQuit()
{
    cancelRecovery();
    m_startWhenReady = false;
    if (m_process.isRunning()) {
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Stopping server for app quit...";
        m_process.stopNow(quitGrace);
    }
    m_orphans.stopFromPidFile();
    serverchecks::removeStaleSocket(serverFifo());
}

void ServerSupervisor::onOutput(const QByteArray &chunk)
{
    const auto entry = serverlog::outputEntry(chunk);
    if (!entry)
        return;
    // Read as it arrives, so that the reason does not depend on what the log still holds.
    if (chunk.contains("Address already in use") || chunk.contains("EADDRINUSE"))
        m_portTaken = true;
    qCInfo(lcServerOutput).nospace().noquote() << *entry;
}

QString ServerSupervisor::failureReason(bool translated) const
{
    return serverfailure::describe(m_failure, m_port, serverFifo(), translated);
}

void ServerSupervisor::setFailure(const ServerFailure &failure)
{
    if (failure == m_failure)
        return;
    m_failure = failure;
    Q_EMIT failureChanged();
}

void ServerSupervisor::onExited(int code, bool crashed, bool current)
{
    if (const QString line = wording::serverEnded(code, crashed, !current); !line.isEmpty())
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] " << line;
    if (!current)
        return;
    Q_EMIT wentDown();
    serverchecks::removeStaleSocket(serverFifo());
    // A restart cannot fix these: the port is watched instead, the socket needs its owner.
    if (m_portTaken || serverchecks::portInUse(quint16(m_port))) {
        setFailure({ ServerFailure::PortInUse, code, {}, crashed });
        return waitForPort();
    }
    if (serverchecks::ownedByAnotherUser(serverFifo(), serverchecks::currentUser())) {
        setFailure({ ServerFailure::FifoTaken, code, {}, crashed });
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Not restarting: " << failureReason();
        return;
    }
    const auto pause = m_restarts.onUnexpectedStop(m_env.steadyNow());
    setFailure({ ServerFailure::Exited, code, {}, crashed, !pause });
    if (!pause) {
        qCInfo(lcConsole).nospace().noquote() << "Not restarting: " << failureReason();
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Not restarting: " << failureReason();
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

std::optional<std::chrono::milliseconds> ServerSupervisor::pendingRestart() const
{
    if (!m_restartTimer.isActive())
        return std::nullopt;
    return m_restartTimer.interval();
}

void ServerSupervisor::notStarted(const ServerFailure &failure)
{
    setFailure(failure);
    qCInfo(lcConsole).nospace().noquote() << "Server not started: " << failureReason();
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Not started: " << failureReason();
}

void ServerSupervisor::waitForPort()
{
    qCInfo(lcLog).nospace().noquote()
        << QStringLiteral("[QuivraMac] Starting the server once port %1 is free (checked every "
                          "%2 s)")
               .arg(m_port)
               .arg(portRecheckInterval.count());
    m_portWatch.start(portRecheckInterval);
}

void ServerSupervisor::onPortCheckDue()
{
    if (serverchecks::portInUse(quint16(m_port)))
        return m_portWatch.start(portRecheckInterval);
    qCInfo(lcLog).nospace().noquote() << QStringLiteral("[QuivraMac] Port %1 is free").arg(m_port);
    launch();
}

bool ServerSupervisor::cancelRecovery()
{
    const bool pending = m_restartTimer.isActive() || m_portWatch.isActive();
    m_restartTimer.stop();
    m_portWatch.stop();
    m_restarts.reset();
    return pending;
}
