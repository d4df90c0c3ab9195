#include "server/orphanreaper.h"

#include "platform/logging.h"
#include "server/processids.h"

#include <QFile>
#include <QProcess>
#include <QThread>

#include <csignal>

OrphanReaper::OrphanReaper(std::shared_ptr<platform::ProcessTable> processes, QString pgrepProgram,
                           QString pidFile)
    : m_processes(std::move(processes))
    , m_pgrep(std::move(pgrepProgram))
    , m_pidFile(std::move(pidFile))
{ }

void OrphanReaper::cleanup()
{
    bool found = false;
    if (QFile::exists(m_pidFile)) {
        if (const auto pid = processids::readPidFile(m_pidFile)) {
            if (m_processes->exists(*pid) && isAppServer(*pid)) {
                qCInfo(lcLog).nospace().noquote()
                    << QStringLiteral("[QuivraMac] Found orphaned server (PID %1 from pidfile)")
                           .arg(*pid);
                kill(*pid);
                found = true;
            }
            QFile::remove(m_pidFile);
        }
    }
    const QList<qint32> listed = find();
    for (const qint32 pid : listed) {
        qCInfo(lcLog).nospace().noquote()
            << QStringLiteral("[QuivraMac] Found orphaned server (PID %1 via pgrep)").arg(pid);
        kill(pid);
    }
    if (found || !listed.isEmpty())
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Cleaned up orphaned server(s)";
}

void OrphanReaper::kill(qint32 pid)
{
    if (!m_processes->exists(pid) || !isAppServer(pid))
        return;
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("[QuivraMac] Killing etserver PID %1").arg(pid);
    m_processes->signal(pid, SIGTERM);
    for (int wait = 0; wait < 10; ++wait) {
        QThread::usleep(100000);
        if (!m_processes->exists(pid))
            return;
    }
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("[QuivraMac] Force killing etserver PID %1").arg(pid);
    m_processes->signal(pid, SIGKILL);
    QThread::usleep(100000);
}

QList<qint32> OrphanReaper::find() const
{
    QProcess pgrep;
    pgrep.setStandardErrorFile(QProcess::nullDevice());
    pgrep.start(m_pgrep, { QStringLiteral("-f"), QStringLiteral("etserver") });
    if (!pgrep.waitForStarted() || !pgrep.waitForFinished())
        return {};
    QList<qint32> servers;
    const QList<qint32> listed = processids::parseList(pgrep.readAllStandardOutput());
    // pgrep -f also lists every command line that merely contains the word.
    for (const qint32 pid : listed) {
        if (isAppServer(pid))
            servers.append(pid);
    }
    return servers;
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
