#pragma once

#include "platform/processtable.h"

#include <QList>
#include <QString>

#include <memory>

// Servers left running by an earlier instance (a crash, a forced quit) are found through the pid
// file and the process table and stopped before a new one starts. Only servers this app started
// count: an etserver the user runs by hand for something else is left alone.
class OrphanReaper
{
public:
    OrphanReaper(std::shared_ptr<platform::ProcessTable> processes, QString pgrepProgram,
                 QString pidFile);

    // Both searches, each found server stopped, and the pid file removed.
    void cleanup();
    // SIGTERM, up to a second, then SIGKILL; only for a server this app started.
    void kill(qint32 pid);
    // The servers this app started that pgrep lists.
    QList<qint32> find() const;
    // At quit: the server named in the pid file, if it is ours, then the file itself.
    void stopFromPidFile();

private:
    // This user's process whose executable is named etserver and whose command line holds
    // this app's own --pidfile.
    bool isAppServer(qint64 pid) const;

    std::shared_ptr<platform::ProcessTable> m_processes;
    QString m_pgrep;
    QString m_pidFile;
};
