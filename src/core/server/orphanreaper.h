#pragma once

#include "platform/processtable.h"

#include <QList>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

// Servers left running by an earlier instance (a crash, a forced quit) are found through the pid
// file and the process table and stopped before a new one starts. Only servers this app started
// count: an etserver the user runs by hand for something else is left alone. The waits run on
// timers, so the main loop goes on meanwhile.
class OrphanReaper : public QObject
{
    Q_OBJECT

public:
    OrphanReaper(std::shared_ptr<platform::ProcessTable> processes, QString pgrepProgram,
                 QString pidFile, QObject *parent = nullptr);

    // Both searches, each found server stopped (SIGTERM, up to a second, then SIGKILL), one
    // after the other, and the pid file removed; finished() follows.
    void cleanup();
    bool isCleaning() const { return m_cleaning; }
    // At quit: the server named in the pid file, if it is ours, then the file itself. This one
    // waits: the app is ending and must not leave its server behind.
    void stopFromPidFile();

Q_SIGNALS:
    void finished();

private:
    void searchProcessTable();
    void onListed(const QList<qint32> &listed);
    void killNext();
    // Stops one server, then runs `done`; at once when it is not one of ours or already gone.
    void kill(qint32 pid, std::function<void()> done);
    void onPoll();
    // This user's process whose executable is named etserver and whose command line holds
    // this app's own --pidfile.
    bool isAppServer(qint64 pid) const;

    std::shared_ptr<platform::ProcessTable> m_processes;
    QString m_pgrepProgram;
    QString m_pidFile;
    bool m_cleaning = false;
    bool m_found = false;
    std::unique_ptr<QProcess> m_pgrep;
    QList<qint32> m_queue;
    // The server being stopped and what follows it.
    qint32 m_victim = 0;
    int m_waits = 0;
    bool m_forced = false;
    std::function<void()> m_afterKill;
    QTimer m_poll;
};
