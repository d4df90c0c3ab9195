#include "server/orphanreaper.h"

#include "platform/logging.h"
#include "server/processids.h"

#include <QFile>
#include <QThread>

#include <csignal>

namespace {
constexpr int pollMs = 100;
constexpr int graceWaits = 10;
} // namespace

OrphanReaper::OrphanReaper(std::shared_ptr<platform::ProcessTable> processes, QString pgrepProgram,
                           QString pidFile, QObject *parent)
    : QObject(parent)
    , m_processes(std::move(processes))
    , m_pgrepProgram(std::move(pgrepProgram))
    , m_pidFile(std::move(pidFile))
{
    m_poll.setSingleShot(true);
    connect(&m_poll, &QTimer::timeout, this, &OrphanReaper::onPoll);
}

void OrphanReaper::cleanup()
{
    if (m_cleaning)
        return;
    m_cleaning = true;
    m_found = false;
    std::optional<qint32> fromPidFile;
    QString problem;
    if (const auto pid = processids::readPidFile(m_pidFile, &problem)) {
        if (m_processes->exists(*pid) && isAppServer(*pid)) {
            qCInfo(lcLog).nospace().noquote()
                << QStringLiteral("[QuivraMac] Found orphaned server (PID %1 from pidfile)")
                       .arg(*pid);
            fromPidFile = *pid;
            m_found = true;
        }
        QFile::remove(m_pidFile);
    } else if (!problem.isEmpty()) {
        // Not a file of ours to read: etserver could not write its own there either (a FIFO
        // would block it), so it goes.
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Removing the pid file: " << problem;
        QFile::remove(m_pidFile);
    }
    // The pid file's server goes first, so that pgrep normally no longer lists it.
    if (fromPidFile)
        kill(*fromPidFile, [this] { searchProcessTable(); });
    else
        searchProcessTable();
}

void OrphanReaper::searchProcessTable()
{
    m_pgrep = std::make_unique<QProcess>();
    m_pgrep->setStandardErrorFile(QProcess::nullDevice());
    connect(m_pgrep.get(), &QProcess::finished, this,
            [this] { onListed(processids::parseList(m_pgrep->readAllStandardOutput())); });
    connect(m_pgrep.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            onListed({});
    });
    m_pgrep->start(m_pgrepProgram, { QStringLiteral("-f"), QStringLiteral("etserver") });
}

void OrphanReaper::onListed(const QList<qint32> &listed)
{
    m_pgrep.release()->deleteLater();
    m_queue.clear();
    // pgrep -f also lists every command line that merely contains the word.
    for (const qint32 pid : listed) {
        if (!isAppServer(pid))
            continue;
        qCInfo(lcLog).nospace().noquote()
            << QStringLiteral("[QuivraMac] Found orphaned server (PID %1 via pgrep)").arg(pid);
        m_queue.append(pid);
        m_found = true;
    }
    killNext();
}

void OrphanReaper::killNext()
{
    if (!m_queue.isEmpty()) {
        kill(m_queue.takeFirst(), [this] { killNext(); });
        return;
    }
    if (m_found)
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Cleaned up orphaned server(s)";
    m_cleaning = false;
    Q_EMIT finished();
}

void OrphanReaper::kill(qint32 pid, std::function<void()> done)
{
    if (!m_processes->exists(pid) || !isAppServer(pid))
        return done();
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("[QuivraMac] Killing etserver PID %1").arg(pid);
    m_processes->signal(pid, SIGTERM);
    m_victim = pid;
    m_waits = 0;
    m_forced = false;
    m_afterKill = std::move(done);
    m_poll.start(pollMs);
}

void OrphanReaper::onPoll()
{
    if (!m_forced && m_processes->exists(m_victim) && ++m_waits < graceWaits)
        return m_poll.start(pollMs);
    if (!m_forced && m_processes->exists(m_victim)) {
        qCInfo(lcConsole).nospace().noquote()
            << QStringLiteral("[QuivraMac] Force killing etserver PID %1").arg(m_victim);
        m_processes->signal(m_victim, SIGKILL);
        m_forced = true;
        return m_poll.start(pollMs);
    }
    std::exchange(m_afterKill, {})();
}

bool OrphanReaper::isAppServer(qint64 pid) const
{
    if (!m_processes->isOwnServer(pid))
        return false;
    const QStringList arguments = m_processes->arguments(pid);
    for (qsizetype i = 1; i + 1 < arguments.size(); ++i) {
        if (arguments.at(i) == QLatin1String("--pidfile") && arguments.at(i + 1) == m_pidFile)
            return true;
    }
    return false;
}

void OrphanReaper::stopFromPidFile()
{
    if (const auto pid = processids::readPidFile(m_pidFile)) {
        if (m_processes->exists(*pid) && isAppServer(*pid)) {
            m_processes->signal(*pid, SIGTERM);
            for (int step = 0; step < 50 && m_processes->exists(*pid); ++step)
                QThread::msleep(10);
            if (m_processes->exists(*pid))
                m_processes->signal(*pid, SIGKILL);
        }
    }
    QFile::remove(m_pidFile);
}
