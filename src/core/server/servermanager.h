#pragma once

#include "devices/deviceregistry.h"
#include "pairing/pairinglistener.h"
#include "pairing/pairingsession.h"
#include "platform/logging.h"
#include "server/keyinstaller.h"
#include "server/orphanreaper.h"
#include "server/restartpolicy.h"
#include "server/serverenvironment.h"
#include "server/serverfailure.h"
#include "server/serverlog.h"
#include "server/serverprocess.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

// The one object the views, the phone's requests and the session bus see: the etserver child,
// its log, the machine's address and pairing mode. It is a façade: the child is a
// ServerProcess, left-over servers an OrphanReaper, pairing mode a PairingSession and keys a
// KeyInstaller; it owns the pairing listener while the server runs. All of it lives on the main
// thread.
class ServerManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(double uptime READ uptime NOTIFY uptimeChanged)
    Q_PROPERTY(int port READ port CONSTANT)
    Q_PROPERTY(QString pairingToken READ pairingToken NOTIFY pairingTokenChanged)
    Q_PROPERTY(QString localIP READ localIP NOTIFY localIPChanged)
    Q_PROPERTY(bool isPairing READ isPairing NOTIFY isPairingChanged)
    Q_PROPERTY(QString logs READ logs WRITE setLogs NOTIFY logsChanged)
    Q_PROPERTY(QString lastPairedDevice READ lastPairedDevice NOTIFY lastPairedDeviceChanged)
    Q_PROPERTY(PairingSession *pairingSession READ pairingSessionObject CONSTANT)
    // When the current code expires, in milliseconds since the epoch.
    Q_PROPERTY(qint64 pairingExpiresAt READ pairingExpiresAt NOTIFY pairingExpiresAtChanged)
    // Why the server is not running, or why phones cannot pair while it runs, in plain words;
    // empty when nothing is wrong.
    Q_PROPERTY(QString failureReason READ failureReason NOTIFY failureReasonChanged)

public:
    // A taken port is looked at again this often, by the server's start and by the listener.
    static constexpr std::chrono::seconds portRecheckInterval { 5 };

    explicit ServerManager(ServerEnvironment environment = {}, QObject *parent = nullptr);
    ~ServerManager() override;

    bool isRunning() const { return m_process.isRunning(); }
    double uptime() const { return m_process.uptime(); }
    // uptimeChanged comes every second only while a view shows the uptime (ServerProcess).
    void watchUptime(bool on) { m_process.watchUptime(on); }
    int port() const { return m_port; }
    QString pairingToken() const { return m_pairing.token(); }
    QString localIP() const { return m_localIP; }
    bool isPairing() const { return m_pairing.isPairing(); }
    qint64 pairingExpiresAt() const { return m_pairing.expiresAt(); }
    QString logs() const { return m_log.text(); }
    // Empty until the first phone pairs.
    QString lastPairedDevice() const { return m_lastPairedDevice; }
    // Why the last start did not give a running server, or why it stopped by itself.
    ServerFailure lastFailure() const { return m_failure; }
    QString failureReason() const { return m_failureReason; }
    // The pause before the next automatic start after an unexpected stop, while one is due.
    std::optional<std::chrono::milliseconds> pendingRestart() const;
    // A taken port keeps the server from starting; it starts once the port is free.
    bool isWaitingForPort() const { return m_portWatch.isActive(); }

    // Replaces the whole log; clearing it from the settings window assigns an empty text.
    void setLogs(const QString &logs);

    // The user's start: also after the app gave up restarting a server that kept stopping.
    Q_INVOKABLE void startServer();
    // Blocks for at most about 2.1 s: SIGTERM, then SIGKILL. Cancels a pending restart.
    Q_INVOKABLE void stopServer();
    void stopServerForQuit();
    void cleanupOrphanedServers() { m_orphans.cleanup(); }
    void killOrphanedServer(qint32 pid) { m_orphans.kill(pid); }
    QList<qint32> findServerProcesses() const { return m_orphans.find(); }

    const ServerEnvironment &environment() const { return m_env; }
    QString etserverURL() const;
    QString supportDirectory() const;
    QString pidFilePath() const;
    // Where etserver listens for its terminals; fixed and shared by every user of the machine.
    static QString serverFifo();
    QStringList serverArguments() const;

    // The user's switch: on refreshes the address and issues a fresh code, and both ways log.
    Q_INVOKABLE void togglePairingMode();
    static QString generatePairingToken() { return PairingSession::generateToken(); }
    // Pairing mode itself; the onboarding switches and renews through it directly, silently.
    PairingSession &pairingSession() { return m_pairing; }
    PairingSession *pairingSessionObject() { return &m_pairing; }
    void startPairingListener();
    void stopPairingListener();
    // Appends the phone's key to ~/.ssh/authorized_keys and ends pairing mode; false (and a
    // logged reason) on failure.
    bool installAuthorizedKey(const QString &publicKey);

    // The phones that can log in, and the revoking of one.
    DeviceRegistry &devices() { return m_devices; }

    // Present while the server runs, until a key has been installed.
    PairingListener *pairingListener() const { return m_pairingListener.get(); }
    // The running child, or nullptr; after the child exits by itself it stays until a stop.
    QProcess *serverProcess() const { return m_process.process(); }

Q_SIGNALS:
    void isRunningChanged();
    void uptimeChanged();
    void pairingTokenChanged();
    void localIPChanged();
    void isPairingChanged();
    void logsChanged();
    void lastPairedDeviceChanged();
    void pairingExpiresAtChanged();
    void lastFailureChanged();
    void failureReasonChanged();
    void devicesChanged();

private:
    void launchServer();
    void notStarted(const ServerFailure &failure);
    void waitForPort();
    void onPortCheckDue();
    void onServerExited(int code, bool crashed, bool current);
    // Stops pending restarts and port checks; true when one was pending.
    bool cancelRecovery();
    void onPairingListenerFailed();
    void retryPairingListener();
    void updateFailureReason();
    void appendToLog(logging::Entry kind, const QString &text);
    void appendServerOutput(const QByteArray &chunk);
    void setLocalIP(const QString &address);
    void setLastPairedDevice(const QString &name);
    void setFailure(const ServerFailure &failure);

    ServerEnvironment m_env;
    int m_port = 2022;
    QString m_localIP = QStringLiteral("127.0.0.1");
    ServerLog m_log;
    logging::AppLog m_previousAppLog;
    QString m_lastPairedDevice;
    ServerFailure m_failure;
    QString m_failureReason;
    // Why the pairing listener could not listen, while it retries.
    QString m_listenerProblem;
    // The child said it could not bind its port since it was launched.
    bool m_portTaken = false;
    RestartPolicy m_restarts;
    ClockTimer m_restartTimer;
    ClockTimer m_portWatch;
    ClockTimer m_listenerRetry;

    ServerProcess m_process;
    OrphanReaper m_orphans;
    PairingSession m_pairing;
    KeyInstaller m_keys;
    DeviceRegistry m_devices;
    // Dropped from inside its own callbacks, so deleted later.
    struct DeleteLater
    {
        void operator()(QObject *object) const { object->deleteLater(); }
    };
    std::unique_ptr<PairingListener, DeleteLater> m_pairingListener;
};
