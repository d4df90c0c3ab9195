#include "server/servermanager.h"

#include "platform/console.h"
#include "platform/userdefaults.h"
#include "server/processids.h"
#include "server/serverlog.h"
#include "server/serveroutput.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <csignal>

namespace {
const QString serverFifo = QStringLiteral("/tmp/et.fifo");
}

ServerManager::ServerManager(ServerEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_env(std::move(environment))
    , m_pairing(m_env.now)
{
    connect(&m_pairing, &PairingSession::isPairingChanged, this, &ServerManager::isPairingChanged);
    connect(&m_pairing, &PairingSession::tokenChanged, this, &ServerManager::pairingTokenChanged);
    connect(&m_pairing, &PairingSession::expiresAtChanged, this,
            &ServerManager::pairingExpiresAtChanged);
    connect(&m_pairing, &PairingSession::message, this, &ServerManager::log);
    m_uptimeTimer.setInterval(m_env.uptimeInterval);
    connect(&m_uptimeTimer, &QTimer::timeout, this, [this] { setUptime(m_uptime + 1.0); });

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
    // Never leave a child behind, even when the quit path did not run.
    if (m_serverProcess && m_serverProcess->state() != QProcess::NotRunning) {
        m_serverProcess->kill();
        m_serverProcess->waitForFinished(1000);
    }
}

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
        return;
    }
    if (m_serverProcess && m_serverProcess->state() != QProcess::NotRunning)
        stopServer();

    const QString support = supportDirectory();
    const QString fifo = QStringLiteral("%1 (%2 chars)").arg(serverFifo).arg(serverFifo.size());
    console::line(QStringLiteral("App support directory: ") + support);
    console::line(QStringLiteral("FIFO path: ") + fifo);
    log(QStringLiteral("[QuivraMac] Support dir: ") + support);
    log(QStringLiteral("[QuivraMac] FIFO path: ") + fifo);
    console::line(QStringLiteral("Starting Quivra Server from %1...").arg(executable));
    log(QStringLiteral("[QuivraMac] Starting server on port %1...").arg(m_port));

    std::unique_ptr<QProcess, DeleteLater> child(new QProcess(this));
    child->setProgram(executable);
    child->setArguments(serverArguments());
    child->setWorkingDirectory(QFileInfo(executable).absolutePath());
    child->setProcessChannelMode(QProcess::MergedChannels);
    child->setStandardInputFile(QProcess::nullDevice());
    child->start(QIODevice::ReadOnly);
    if (!child->waitForStarted()) {
        console::line(QStringLiteral("Failed to launch server: ") + child->errorString());
        log(QStringLiteral("[QuivraMac] Failed to start: ") + child->errorString());
        return;
    }

    const quint64 generation = ++m_generation;
    QProcess *process = child.get();
    m_serverProcess = std::move(child);
    m_serverPid = process->processId();
    setRunning(true);
    m_uptimeTimer.start();
    auto *output = new ServerOutputReader(process);
    connect(output, &ServerOutputReader::received, this, &ServerManager::appendServerOutput);
    // The exit notice is queued so that a stop's own messages come before it, as they would if
    // the platform reported the exit from another thread.
    connect(process, &QProcess::finished, this, [this, generation, output](int code) {
        output->flush();
        QMetaObject::invokeMethod(
            this, [this, generation, code] { onServerExited(generation, code); },
            Qt::QueuedConnection);
    });
    startPairingListener();
}

void ServerManager::stopServer()
{
    if (!m_serverProcess)
        return;
    const qint64 pid = m_serverPid;
    console::line(QStringLiteral("Stopping Quivra Server (PID %1)...").arg(pid));
    log(QStringLiteral("[QuivraMac] Stopping server (PID %1)...").arg(pid));

    stopPairingListener();
    QProcess *process = m_serverProcess.get();
    if (process->state() != QProcess::NotRunning) {
        process->terminate();
        // Returns as soon as the child exits; 20 steps of 100 ms at the most.
        if (!process->waitForFinished(2000)) {
            log(QStringLiteral("[QuivraMac] Force killing server (didn't exit gracefully)"));
            process->kill();
            process->waitForFinished(100);
        }
    }
    QFile::remove(pidFilePath());
    m_serverProcess.reset();
    resetRunningState();
    log(QStringLiteral("[QuivraMac] Server stopped"));
}

void ServerManager::stopServerForQuit()
{
    if (m_serverProcess && m_serverProcess->state() != QProcess::NotRunning) {
        log(QStringLiteral("[QuivraMac] Stopping server for app quit..."));
        m_serverProcess->terminate();
        if (!m_serverProcess->waitForFinished(1000))
            m_serverProcess->kill();
    }
    const QString pidFile = pidFilePath();
    if (const auto pid = processids::readPidFile(pidFile)) {
        auto &processes = *m_env.processes;
        if (processes.exists(*pid) && processes.isOwnServer(*pid)) {
            processes.signal(*pid, SIGTERM);
            for (int step = 0; step < 50 && processes.exists(*pid); ++step)
                QThread::msleep(10);
            if (processes.exists(*pid))
                processes.signal(*pid, SIGKILL);
        }
    }
    QFile::remove(pidFile);
}

void ServerManager::onServerExited(quint64 generation, int status)
{
    if (m_serverProcess && generation == m_generation)
        resetRunningState();
    log(QStringLiteral("[QuivraMac] Server exited with code %1").arg(status));
}

void ServerManager::resetRunningState()
{
    setRunning(false);
    m_uptimeTimer.stop();
    setUptime(0);
    stopPairingListener();
}

void ServerManager::appendServerOutput(const QByteArray &chunk)
{
    const auto entry = serverlog::outputEntry(chunk);
    if (!entry)
        return;
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

void ServerManager::setRunning(bool running)
{
    if (running == m_isRunning)
        return;
    m_isRunning = running;
    Q_EMIT isRunningChanged();
}

void ServerManager::setUptime(double uptime)
{
    if (uptime == m_uptime)
        return;
    m_uptime = uptime;
    Q_EMIT uptimeChanged();
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
