// Servers left running by an earlier instance (a crash, a forced quit) are found through the pid
// file and the process table and stopped before a new one starts.
#include "platform/console.h"
#include "server/processids.h"
#include "server/servermanager.h"

#include <QFile>
#include <QProcess>
#include <QThread>

#include <csignal>

void ServerManager::cleanupOrphanedServers()
{
    auto &processes = *m_env.processes;
    bool found = false;
    const QString pidFile = pidFilePath();
    if (QFile::exists(pidFile)) {
        if (const auto pid = processids::readPidFile(pidFile)) {
            if (processes.exists(*pid) && processes.isOwnServer(*pid)) {
                log(QStringLiteral("[QuivraMac] Found orphaned server (PID %1 from pidfile)")
                        .arg(*pid));
                killOrphanedServer(*pid);
                found = true;
            }
            QFile::remove(pidFile);
        }
    }
    const QList<qint32> listed = findServerProcesses();
    for (const qint32 pid : listed) {
        log(QStringLiteral("[QuivraMac] Found orphaned server (PID %1 via pgrep)").arg(pid));
        killOrphanedServer(pid);
    }
    if (found || !listed.isEmpty())
        log(QStringLiteral("[QuivraMac] Cleaned up orphaned server(s)"));
}

void ServerManager::killOrphanedServer(qint32 pid)
{
    auto &processes = *m_env.processes;
    if (!processes.exists(pid) || !processes.isOwnServer(pid))
        return;
    console::line(QStringLiteral("[QuivraMac] Killing etserver PID %1").arg(pid));
    processes.signal(pid, SIGTERM);
    for (int wait = 0; wait < 10; ++wait) {
        QThread::usleep(100000);
        if (!processes.exists(pid))
            return;
    }
    console::line(QStringLiteral("[QuivraMac] Force killing etserver PID %1").arg(pid));
    processes.signal(pid, SIGKILL);
    QThread::usleep(100000);
}

QList<qint32> ServerManager::findServerProcesses() const
{
    QProcess pgrep;
    pgrep.setStandardErrorFile(QProcess::nullDevice());
    pgrep.start(m_env.pgrepProgram, { QStringLiteral("-f"), QStringLiteral("etserver") });
    if (!pgrep.waitForStarted() || !pgrep.waitForFinished())
        return {};
    QList<qint32> servers;
    const QList<qint32> listed = processids::parseList(pgrep.readAllStandardOutput());
    // pgrep -f also lists every command line that merely contains the word.
    for (const qint32 pid : listed) {
        if (m_env.processes->isOwnServer(pid))
            servers.append(pid);
    }
    return servers;
}
