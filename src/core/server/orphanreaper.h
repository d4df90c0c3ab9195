#pragma once

#include "platform/processtable.h"

#include <QList>
#include <QString>

#include <memory>

// Servers left running by an earlier instance (a crash, a forced quit) are found through the pid
// file and the process table and stopped before a new one starts.
class OrphanReaper
{
public:
    OrphanReaper(std::shared_ptr<platform::ProcessTable> processes, QString pgrepProgram,
                 QString pidFile);

    // Both searches, each found server stopped, and the pid file removed.
    void cleanup();
    // SIGTERM, up to a second, then SIGKILL; only for this user's etserver.
    void kill(qint32 pid);
    // This user's etserver processes that pgrep lists.
    QList<qint32> find() const;
    // At quit: the server named in the pid file, if it is ours, then the file itself.
    void stopFromPidFile();

private:
    std::shared_ptr<platform::ProcessTable> m_processes;
    QString m_pgrep;
    QString m_pidFile;
};
