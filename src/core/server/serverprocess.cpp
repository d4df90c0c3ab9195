#include "server/serverprocess.h"

#include "server/serveroutput.h"

#include <QFileInfo>

#include <algorithm>

ServerProcess::ServerProcess(std::chrono::milliseconds uptimeTick, QObject *parent)
    : QObject(parent)
    , m_tickNanoseconds(std::max<qint64>(1, std::chrono::nanoseconds(uptimeTick).count()))
{
    // Set afresh for each whole tick, so a shown uptime never skips or repeats a second.
    m_uptimeTimer.setSingleShot(true);
    m_uptimeTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_uptimeTimer, &QTimer::timeout, this, &ServerProcess::refreshUptime);
    m_killTimer.setSingleShot(true);
    // A coarse timer may fire up to 5% early, and the grace is a promise to the server.
    m_killTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_killTimer, &QTimer::timeout, this, [this] {
        if (!m_process || m_process->state() == QProcess::NotRunning)
            return;
        if (m_beforeKill)
            m_beforeKill();
        m_process->kill();
    });
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
    m_sinceLaunch.start();
    setRunning(true);
    refreshUptime();
    auto *reader = new ServerOutputReader(process);
    connect(reader, &ServerOutputReader::received, this, &ServerProcess::output);
    connect(process, &QProcess::finished, this,
            [this, generation, reader](int code, QProcess::ExitStatus status) {
                reader->flush();
                const bool crashed = status == QProcess::CrashExit;
                QMetaObject::invokeMethod(
                    this,
                    [this, generation, code, crashed] {
                        bool current = m_process && generation == m_generation;
                        if (current && m_stopping) {
                            // The end of a stop: not an exit of the current server any more.
                            forget();
                            Q_EMIT stopped();
                            current = false;
                        } else if (current) {
                            setRunning(false);
                            refreshUptime();
                        }
                        Q_EMIT exited(code, crashed, current);
                    },
                    Qt::QueuedConnection);
            });
    return std::nullopt;
}

void ServerProcess::stop(std::chrono::milliseconds grace, std::function<void()> beforeKill)
{
    if (m_stopping)
        return;
    if (!m_process || m_process->state() == QProcess::NotRunning) {
        // Already exited (its notice came or is on its way): nothing to wait for.
        forget();
        Q_EMIT stopped();
        return;
    }
    m_stopping = true;
    m_beforeKill = std::move(beforeKill);
    m_process->terminate();
    m_killTimer.start(grace);
}

void ServerProcess::stopNow(std::chrono::milliseconds grace)
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        if (!m_stopping)
            m_process->terminate();
        // Returns as soon as the child exits.
        if (!m_process->waitForFinished(int(grace.count()))) {
            m_process->kill();
            m_process->waitForFinished(100);
        }
    }
    forget();
}

void ServerProcess::forget()
{
    m_stopping = false;
    m_killTimer.stop();
    m_beforeKill = {};
    m_process.reset();
    setRunning(false);
    refreshUptime();
}

void ServerProcess::setRunning(bool running)
{
    if (running == m_running)
        return;
    m_running = running;
    Q_EMIT runningChanged();
}

double ServerProcess::uptime() const
{
    return m_running ? double(m_sinceLaunch.nsecsElapsed() / m_tickNanoseconds) : 0.0;
}

void ServerProcess::watchUptime(bool on)
{
    m_uptimeWatchers = std::max(0, m_uptimeWatchers + (on ? 1 : -1));
    refreshUptime();
}

void ServerProcess::refreshUptime()
{
    // A reset is announced even unwatched: it is rare, and views must not keep the old value.
    const double now = uptime();
    if (now != m_announcedUptime) {
        m_announcedUptime = now;
        Q_EMIT uptimeChanged();
    }
    if (!m_running || m_uptimeWatchers == 0) {
        m_uptimeTimer.stop();
        return;
    }
    const qint64 intoTick = m_sinceLaunch.nsecsElapsed() % m_tickNanoseconds;
    // Rounded up, so the tick lands just past the boundary rather than just before it.
    m_uptimeTimer.start(int((m_tickNanoseconds - intoTick + 999'999) / 1'000'000));
}
