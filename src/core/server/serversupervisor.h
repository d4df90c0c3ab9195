#pragma once

#include "server/clocktimer.h"
#include "server/orphanreaper.h"
#include "server/restartpolicy.h"
#include "server/serverenvironment.h"
#include "server/serverfailure.h"
#include "server/serverprocess.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <optional>

// The etserver child and everything that keeps it running: its launch and stop, the restarts
// after it stops by itself, the wait for a taken port, and the clean-up of servers an earlier
// run left behind. Nothing here waits on the main thread except the quit path.
class ServerSupervisor : public QObject
{
    Q_OBJECT

public:
    // A taken port is looked at again this often, by the server's start and by the listener.
    static constexpr std::chrono::seconds portRecheckInterval { 5 };
    // How long a stopping server may take before SIGKILL, the quit's included.
    static constexpr std::chrono::milliseconds stopGrace { 2000 };
    static constexpr std::chrono::milliseconds quitGrace { 1000 };

    explicit ServerSupervisor(const ServerEnvironment &environment, QObject *parent = nullptr);

    int port() const { return m_port; }
    bool isRunning() const { return m_process.isRunning(); }
    double uptime() const { return m_process.uptime(); }
    void watchUptime(bool on) { m_process.watchUptime(on); }
    // From launch until the next stop's end; after the child exits by itself it stays until then.
    qint64 pid() const { return m_process.process() ? m_process.pid() : 0; }
    bool isStopping() const { return m_process.isStopping(); }
    bool isCleaningUp() const { return m_orphans.isCleaning(); }

    // Why the last start did not give a running server, or why it stopped by itself.
    ServerFailure failure() const { return m_failure; }
    // English for the log; `translated` for a person (see serverfailure::describe).
    QString failureReason(bool translated = false) const;
    // The pause before the next automatic start after an unexpected stop, while one is due.
    std::optional<std::chrono::milliseconds> pendingRestart() const;
    // A taken port keeps the server from starting; it starts once the port is free.
    bool isWaitingForPort() const { return m_portWatch.isActive(); }

    // The user's start: also after the app gave up restarting a server that kept stopping. While
    // a stop or the orphans' clean-up is under way the launch follows its end.
    void start();
    // SIGTERM, then SIGKILL after stopGrace; returns at once. Cancels a pending restart.
    void stop();
    // For the app's quit: waits for the child (at most quitGrace), then for the pid file's server.
    void stopForQuit();
    // Looks for servers an earlier run left behind; a start waits until they are gone.
    void cleanupOrphans() { m_orphans.cleanup(); }

    QString executable() const { return m_env.locateExecutable(); }
    QString supportDirectory() const { return m_env.supportDirectory(); }
    QString pidFilePath() const;
    // Where etserver listens for its terminals; fixed and shared by every user of the machine.
    QString serverFifo() const { return m_env.serverFifo; }
    QStringList arguments() const;

Q_SIGNALS:
    void runningChanged();
    void uptimeChanged();
    void failureChanged();
    // The server was asked to stop, or stopped by itself: pairing mode ends with it.
    void wentDown();

private:
    void launch();
    void finishStop();
    void notStarted(const ServerFailure &failure);
    void waitForPort();
    void onPortCheckDue();
    void onExited(int code, bool crashed, bool current);
    void onOutput(const QByteArray &chunk);
    // Stops pending restarts and port checks; true when one was pending.
    bool cancelRecovery();
    void setFailure(const ServerFailure &failure);

    ServerEnvironment m_env;
    int m_port = 2022;
    ServerFailure m_failure;
    // The child said it could not bind its port since it was launched.
    bool m_portTaken = false;
    // A start asked for while a stop or the clean-up was still under way.
    bool m_startWhenReady = false;
    RestartPolicy m_restarts;
    ClockTimer m_restartTimer;
    ClockTimer m_portWatch;
    ServerProcess m_process;
    OrphanReaper m_orphans;
};
