#include "server/serverprocess.h"

#include "server/serveroutput.h"

#include <QFileInfo>

ServerProcess::ServerProcess(std::chrono::milliseconds uptimeTick, QObject *parent)
    : QObject(parent)
{
    m_uptimeTimer.setInterval(uptimeTick);
    connect(&m_uptimeTimer, &QTimer::timeout, this, [this] { setUptime(m_uptime + 1.0); });
}

ServerProcess::~ServerProcess()
{
    // Never leave a child behind, even when the quit path did not run.
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->kill();
        m_process->waitForFinished(1000);
    }
}

std::optional<QString> ServerProcess::launch(const QString &program, const QStringList &arguments)
{
    std::unique_ptr<QProcess, DeleteLater> child(new QProcess(this));
    child->setProgram(program);
    child->setArguments(arguments);
    child->setWorkingDirectory(QFileInfo(program).absolutePath());
    child->setProcessChannelMode(QProcess::MergedChannels);
    child->setStandardInputFile(QProcess::nullDevice());
    child->start(QIODevice::ReadOnly);
    if (!child->waitForStarted())
        return child->errorString();

    const quint64 generation = ++m_generation;
    QProcess *process = child.get();
    m_process = std::move(child);
    m_pid = process->processId();
    setRunning(true);
    m_uptimeTimer.start();
    auto *reader = new ServerOutputReader(process);
    connect(reader, &ServerOutputReader::received, this, &ServerProcess::output);
    connect(process, &QProcess::finished, this,
            [this, generation, reader](int code, QProcess::ExitStatus status) {
                reader->flush();
                const bool crashed = status == QProcess::CrashExit;
                QMetaObject::invokeMethod(
                    this,
                    [this, generation, code, crashed] {
                        const bool current = m_process && generation == m_generation;
                        if (current) {
                            setRunning(false);
                            m_uptimeTimer.stop();
                            setUptime(0);
                        }
                        Q_EMIT exited(code, crashed, current);
                    },
                    Qt::QueuedConnection);
            });
    return std::nullopt;
}

void ServerProcess::stop(std::chrono::milliseconds grace, const std::function<void()> &beforeKill)
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->terminate();
        // Returns as soon as the child exits.
        if (!m_process->waitForFinished(int(grace.count()))) {
            if (beforeKill)
                beforeKill();
            m_process->kill();
            m_process->waitForFinished(100);
        }
    }
    m_process.reset();
    setRunning(false);
    m_uptimeTimer.stop();
    setUptime(0);
}

void ServerProcess::setRunning(bool running)
{
    if (running == m_running)
        return;
    m_running = running;
    Q_EMIT runningChanged();
}

void ServerProcess::setUptime(double uptime)
{
    if (uptime == m_uptime)
        return;
    m_uptime = uptime;
    Q_EMIT uptimeChanged();
}
