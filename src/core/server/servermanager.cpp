#include "server/servermanager.h"

#include "platform/logging.h"
#include "platform/userdefaults.h"
#include "server/serverchecks.h"
#include "server/serverlog.h"

#include <QCoreApplication>
#include <QFile>

ServerManager::ServerManager(ServerEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_env(std::move(environment))
    , m_restartTimer(m_env.steadyNow, m_env.longestSleep)
    , m_portWatch(m_env.steadyNow, m_env.longestSleep)
    , m_listenerRetry(m_env.steadyNow, m_env.longestSleep)
    , m_process(m_env.uptimeInterval)
    , m_orphans(m_env.processes, m_env.pgrepProgram, pidFilePath())
    , m_pairing(m_env.now)
    , m_devices(supportDirectory())
{
    // This manager's log is the app's: lines logged in the log categories end up here.
    m_previousAppLog = logging::setAppLog(
        [this](logging::Entry kind, const QString &text) { appendToLog(kind, text); });
    connect(&m_devices, &DeviceRegistry::devicesChanged, this, &ServerManager::devicesChanged);
    connect(&m_process, &ServerProcess::runningChanged, this, &ServerManager::isRunningChanged);
    connect(&m_process, &ServerProcess::uptimeChanged, this, &ServerManager::uptimeChanged);
    connect(&m_process, &ServerProcess::output, this, &ServerManager::appendServerOutput);
    connect(&m_process, &ServerProcess::exited, this, &ServerManager::onServerExited);
    connect(&m_restartTimer, &ClockTimer::timeout, this, &ServerManager::launchServer);
    connect(&m_portWatch, &ClockTimer::timeout, this, &ServerManager::onPortCheckDue);
    connect(&m_listenerRetry, &ClockTimer::timeout, this, &ServerManager::retryPairingListener);
    connect(&m_pairing, &PairingSession::isPairingChanged, this, &ServerManager::isPairingChanged);
    connect(&m_pairing, &PairingSession::tokenChanged, this, &ServerManager::pairingTokenChanged);
    connect(&m_pairing, &PairingSession::expiresAtChanged, this,
            &ServerManager::pairingExpiresAtChanged);

    setLocalIP(m_env.localIP());
    userdefaults::registerDefaults({ { QStringLiteral("autoStartServer"), true } });
    cleanupOrphanedServers();
    if (auto *app = QCoreApplication::instance())
        connect(app, &QCoreApplication::aboutToQuit, this, &ServerManager::stopServerForQuit);
    if (userdefaults::boolValue(QStringLiteral("autoStartServer")))
        startServer();
}

ServerManager::~ServerManager()
{
    logging::setAppLog(std::move(m_previousAppLog));
}

QString ServerManager::etserverURL() const
{
    return m_env.locateExecutable();
}

QString ServerManager::supportDirectory() const
{
    return m_env.supportDirectory();
}

QString ServerManager::serverFifo()
{
    return QStringLiteral("/tmp/et.fifo");
}

QString ServerManager::pidFilePath() const
{
    return supportDirectory() + QStringLiteral("/etserver.pid");
}

QStringList ServerManager::serverArguments() const
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

void ServerManager::startServer()
{
    cancelRecovery();
    launchServer();
}

void ServerManager::launchServer()
{
    const QString executable = etserverURL();
    if (executable.isEmpty()) {
        qCInfo(lcConsole).nospace().noquote() << "Error: etserver not found in bundle";
        qCInfo(lcLog).nospace().noquote()
            << "[QuivraMac] Error: etserver binary not found in app bundle";
        setFailure({ ServerFailure::NotInstalled });
        return;
    }
    if (m_process.isRunning())
        stopServer();

    const QString support = supportDirectory();
    const QString fifo = QStringLiteral("%1 (%2 chars)").arg(serverFifo()).arg(serverFifo().size());
    qCInfo(lcConsole).nospace().noquote() << "App support directory: " << support;
    qCInfo(lcConsole).nospace().noquote() << "FIFO path: " << fifo;
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Support dir: " << support;
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] FIFO path: " << fifo;
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("Starting Quivra Server from %1...").arg(executable);
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
    if (const auto error = m_process.launch(executable, serverArguments())) {
        qCInfo(lcConsole).nospace().noquote() << "Failed to launch server: " << *error;
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Failed to start: " << *error;
        setFailure({ ServerFailure::LaunchFailed, -1, *error });
        return;
    }
    setFailure({});
    startPairingListener();
}

void ServerManager::stopServer()
{
    const bool wasRecovering = cancelRecovery();
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
    stopPairingListener();
    // Returns as soon as the child exits; 20 steps of 100 ms at the most.
    m_process.stop(std::chrono::milliseconds(2000), [] {
        qCInfo(lcLog).nospace().noquote()
            << "[QuivraMac] Force killing server (didn't exit gracefully)";
    });
    QFile::remove(pidFilePath());
    serverchecks::removeOwnSocket(serverFifo());
    setFailure({});
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Server stopped";
}

void ServerManager::stopServerForQuit()
{
    cancelRecovery();
    if (m_process.isRunning()) {
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Stopping server for app quit...";
        m_process.stop(std::chrono::milliseconds(1000));
    }
    m_orphans.stopFromPidFile();
    serverchecks::removeOwnSocket(serverFifo());
}

void ServerManager::appendServerOutput(const QByteArray &chunk)
{
    const auto entry = serverlog::outputEntry(chunk);
    if (!entry)
        return;
    // Read as it arrives, so that the reason does not depend on what the log still holds.
    if (chunk.contains("Address already in use") || chunk.contains("EADDRINUSE"))
        m_portTaken = true;
    qCInfo(lcServerOutput).nospace().noquote() << *entry;
}

void ServerManager::appendToLog(logging::Entry kind, const QString &text)
{
    if (kind == logging::Entry::ServerOutput)
        m_log.appendOutput(text);
    else
        m_log.appendMessage(text);
    Q_EMIT logsChanged();
}

void ServerManager::setLogs(const QString &logs)
{
    if (logs == m_log.text())
        return;
    m_log.assign(logs);
    Q_EMIT logsChanged();
}

void ServerManager::setFailure(const ServerFailure &failure)
{
    if (failure == m_failure)
        return;
    m_failure = failure;
    Q_EMIT lastFailureChanged();
    updateFailureReason();
}

void ServerManager::updateFailureReason()
{
    QString reason = serverfailure::describe(m_failure, m_port, serverFifo());
    if (reason.isEmpty())
        reason = m_listenerProblem;
    if (reason == m_failureReason)
        return;
    m_failureReason = reason;
    Q_EMIT failureReasonChanged();
}

void ServerManager::setLastPairedDevice(const QString &name)
{
    if (name == m_lastPairedDevice)
        return;
    m_lastPairedDevice = name;
    Q_EMIT lastPairedDeviceChanged();
}

void ServerManager::setLocalIP(const QString &address)
{
    if (address == m_localIP)
        return;
    m_localIP = address;
    Q_EMIT localIPChanged();
}
