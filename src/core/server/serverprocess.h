#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

// The etserver child: its launch, its merged output, its exit, a graceful then forced stop and
// its uptime. It says nothing itself; ServerManager turns what happens into messages.
class ServerProcess : public QObject
{
    Q_OBJECT

public:
    explicit ServerProcess(std::chrono::milliseconds uptimeTick, QObject *parent = nullptr);
    ~ServerProcess() override;

    bool isRunning() const { return m_running; }
    // Whole ticks since the launch, worked out when read; 0 while not running.
    double uptime() const;
    // uptimeChanged comes once a tick only while someone shows the uptime: an idle process
    // without a view stays asleep. Counted, so every watch(true) needs its watch(false).
    void watchUptime(bool on);
    qint64 pid() const { return m_pid; }
    // From launch until the next stop; after the child exits by itself it stays until then.
    QProcess *process() const { return m_process.get(); }

    // The platform's error text when the child could not be started.
    std::optional<QString> launch(const QString &program, const QStringList &arguments);
    // SIGTERM, then SIGKILL once `grace` has passed; beforeKill runs just before the kill.
    // Returns at once: stopped() follows once the child has gone (before returning when it had
    // already exited), and the child is forgotten then.
    void stop(std::chrono::milliseconds grace, std::function<void()> beforeKill = {});
    bool isStopping() const { return m_stopping; }
    // The same, waiting on the calling thread: only for the app's quit, which must not leave
    // the child behind.
    void stopNow(std::chrono::milliseconds grace);

Q_SIGNALS:
    void runningChanged();
    void uptimeChanged();
    void output(const QByteArray &chunk);
    // After the child's last output, on the loop's next turn: a stop's own messages come first.
    // Also for a child already replaced by a newer one, with `current` false. When `crashed`,
    // code is the number of the signal that ended it.
    void exited(int code, bool crashed, bool current);
    // A stop has finished; comes before that child's exited().
    void stopped();

private:
    void setRunning(bool running);
    void forget();
    // Announces a changed uptime and sets the tick for the next whole one, when watched.
    void refreshUptime();

    // Dropped from inside its own signal handlers, so deleted later.
    struct DeleteLater
    {
        void operator()(QObject *object) const { object->deleteLater(); }
    };
    std::unique_ptr<QProcess, DeleteLater> m_process;
    qint64 m_pid = 0;
    // Tells a child's exit apart from its successor's after a restart.
    quint64 m_generation = 0;
    bool m_running = false;
    const qint64 m_tickNanoseconds;
    QElapsedTimer m_sinceLaunch;
    double m_announcedUptime = 0;
    int m_uptimeWatchers = 0;
    QTimer m_uptimeTimer;
    bool m_stopping = false;
    QTimer m_killTimer;
    std::function<void()> m_beforeKill;
};
