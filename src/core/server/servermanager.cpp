#include "server/servermanager.h"

#include "platform/console.h"
#include "platform/userdefaults.h"
#include "server/serverlog.h"

#include <QCoreApplication>
#include <QFile>

namespace {
const QString serverFifo = QStringLiteral("/tmp/et.fifo");
}

ServerManager::ServerManager(ServerEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_env(std::move(environment))
    , m_process(m_env.uptimeInterval)
    , m_orphans(m_env.processes, m_env.pgrepProgram, pidFilePath(),
                [this](const QString &line) { log(line); })
    , m_pairing(m_env.now)
    , m_keys([this](const QString &line) { log(line); })
    , m_devices(supportDirectory())
{
    connect(&m_devices, &DeviceRegistry::devicesChanged, this, &ServerManager::devicesChanged);
    connect(&m_process, &ServerProcess::runningChanged, this, &ServerManager::isRunningChanged);
    connect(&m_process, &ServerProcess::uptimeChanged, this, &ServerManager::uptimeChanged);
    connect(&m_process, &ServerProcess::output, this, &ServerManager::appendServerOutput);
    connect(&m_process, &ServerProcess::exited, this, &ServerManager::onServerExited);
    connect(&m_pairing, &PairingSession::isPairingChanged, this, &ServerManager::isPairingChanged);
    connect(&m_pairing, &PairingSession::tokenChanged, this, &ServerManager::pairingTokenChanged);
    connect(&m_pairing, &PairingSession::expiresAtChanged, this,
            &ServerManager::pairingExpiresAtChanged);
    connect(&m_pairing, &PairingSession::message, this, &ServerManager::log);

    setLocalIP(m_env.localIP());
    userdefaults::registerDefaults({ { QStringLiteral("autoStartServer"), true } });
    cleanupOrphanedServers();
    if (auto *app = QCoreApplication::instance())
        connect(app, &QCoreApplication::aboutToQuit, this, &ServerManager::stopServerForQuit);
    if (userdefaults::boolValue(QStringLiteral("autoStartServer")))
        startServer();
}

ServerManager::~ServerManager() = default;

QString ServerManager::etserverURL() const
{
    return m_env.locateExecutable();
}

QString ServerManager::supportDirectory() const
{
    return m_env.supportDirectory();
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
             serverFifo,
             QStringLiteral("--logtostdout"),
             QStringLiteral("--verbose"),
             QStringLiteral("1") };
}

void ServerManager::startServer()
{
    const QString executable = etserverURL();
    if (executable.isEmpty()) {
        console::line(QStringLiteral("Error: etserver not found in bundle"));
        log(QStringLiteral("[QuivraMac] Error: etserver binary not found in app bundle"));
        setFailure({ ServerFailure::NotInstalled });
        return;
    }
    if (m_process.isRunning())
        stopServer();

    const QString support = supportDirectory();
    const QString fifo = QStringLiteral("%1 (%2 chars)").arg(serverFifo).arg(serverFifo.size());
    console::line(QStringLiteral("App support directory: ") + support);
    console::line(QStringLiteral("FIFO path: ") + fifo);
    log(QStringLiteral("[QuivraMac] Support dir: ") + support);
    log(QStringLiteral("[QuivraMac] FIFO path: ") + fifo);
    console::line(QStringLiteral("Starting Quivra Server from %1...").arg(executable));
    log(QStringLiteral("[QuivraMac] Starting server on port %1...").arg(m_port));

    m_portTaken = false;
    if (const auto error = m_process.launch(executable, serverArguments())) {
        console::line(QStringLiteral("Failed to launch server: ") + *error);
        log(QStringLiteral("[QuivraMac] Failed to start: ") + *error);
        setFailure({ ServerFailure::LaunchFailed, -1, *error });
        return;
    }
    setFailure({});
    startPairingListener();
}

void ServerManager::stopServer()
{
    if (!m_process.process())
        return;
    console::line(QStringLiteral("Stopping Quivra Server (PID %1)...").arg(m_process.pid()));
    log(QStringLiteral("[QuivraMac] Stopping server (PID %1)...").arg(m_process.pid()));
    stopPairingListener();
    // Returns as soon as the child exits; 20 steps of 100 ms at the most.
    m_process.stop(std::chrono::milliseconds(2000), [this] {
        log(QStringLiteral("[QuivraMac] Force killing server (didn't exit gracefully)"));
    });
    QFile::remove(pidFilePath());
    setFailure({});
    log(QStringLiteral("[QuivraMac] Server stopped"));
}

void ServerManager::stopServerForQuit()
{
    if (m_process.isRunning()) {
        log(QStringLiteral("[QuivraMac] Stopping server for app quit..."));
        m_process.stop(std::chrono::milliseconds(1000));
    }
    m_orphans.stopFromPidFile();
}

void ServerManager::onServerExited(int code, bool current)
{
    if (current) {
        stopPairingListener();
        setFailure({ m_portTaken ? ServerFailure::PortInUse : ServerFailure::Exited, code });
    }
    log(QStringLiteral("[QuivraMac] Server exited with code %1").arg(code));
}

void ServerManager::appendServerOutput(const QByteArray &chunk)
{
    const auto entry = serverlog::outputEntry(chunk);
    if (!entry)
        return;
    // Read as it arrives, so that the reason does not depend on what the log still holds.
    if (chunk.contains("Address already in use") || chunk.contains("EADDRINUSE"))
        m_portTaken = true;
    console::line(*entry);
    m_log.appendOutput(*entry);
    Q_EMIT logsChanged();
}

void ServerManager::log(const QString &message)
{
    m_log.appendMessage(message);
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
