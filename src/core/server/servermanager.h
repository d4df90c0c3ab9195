#pragma once

#include "pairing/pairinglistener.h"
#include "pairing/pairingsession.h"
#include "server/serverenvironment.h"
#include "server/serverlog.h"

#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QTimer>

#include <memory>

// Owns the etserver child: start, output capture, exit notice, graceful and forced stop, and
// clean-up of servers left over by an earlier run. All of it lives on the main thread.
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

public:
    explicit ServerManager(ServerEnvironment environment = {}, QObject *parent = nullptr);
    ~ServerManager() override;

    bool isRunning() const { return m_isRunning; }
    double uptime() const { return m_uptime; }
    int port() const { return m_port; }
    QString pairingToken() const { return m_pairing.token(); }
    QString localIP() const { return m_localIP; }
    bool isPairing() const { return m_pairing.isPairing(); }
    qint64 pairingExpiresAt() const { return m_pairing.expiresAt(); }
    QString logs() const { return m_log.text(); }
    // Empty until the first phone pairs.
    QString lastPairedDevice() const { return m_lastPairedDevice; }

    // The settings window clears the log by assigning an empty text.
    void setLogs(const QString &logs);

    Q_INVOKABLE void startServer();
    // Blocks for at most about 2.1 s: SIGTERM, then SIGKILL.
    Q_INVOKABLE void stopServer();
    void stopServerForQuit();
    void cleanupOrphanedServers();
    void killOrphanedServer(qint32 pid);
    QList<qint32> findServerProcesses() const;

    const ServerEnvironment &environment() const { return m_env; }
    QString etserverURL() const;
    QString supportDirectory() const;
    QString pidFilePath() const;
    QStringList serverArguments() const;

    // The user's switch: on refreshes the address and issues a fresh code, and both ways log.
    Q_INVOKABLE void togglePairingMode();
    static QString generatePairingToken() { return PairingSession::generateToken(); }
    // Pairing mode itself; the onboarding switches and renews through it directly, silently.
    PairingSession &pairingSession() { return m_pairing; }
    PairingSession *pairingSessionObject() { return &m_pairing; }
    void startPairingListener();
    void stopPairingListener();
    // Appends the phone's key to ~/.ssh/authorized_keys; false (and a logged reason) on failure.
    bool installAuthorizedKey(const QString &publicKey);

    // Present while the server runs, until a key has been installed.
    PairingListener *pairingListener() const { return m_pairingListener.get(); }

    // The running child, or nullptr; after the child exits by itself it stays until a stop.
    QProcess *serverProcess() const { return m_serverProcess.get(); }

Q_SIGNALS:
    void isRunningChanged();
    void uptimeChanged();
    void pairingTokenChanged();
    void localIPChanged();
    void isPairingChanged();
    void logsChanged();
    void lastPairedDeviceChanged();
    void pairingExpiresAtChanged();

private:
    void log(const QString &message);
    void appendServerOutput(const QByteArray &chunk);
    void onServerExited(quint64 generation, int status);
    void resetRunningState();

    void setRunning(bool running);
    void setUptime(double uptime);
    void setLocalIP(const QString &address);
    void setLastPairedDevice(const QString &name);

    ServerEnvironment m_env;

    bool m_isRunning = false;
    double m_uptime = 0;
    int m_port = 2022;
    QString m_localIP = QStringLiteral("127.0.0.1");
    PairingSession m_pairing;
    ServerLog m_log;
    QString m_lastPairedDevice;

    QTimer m_uptimeTimer;
    // Both may be dropped from inside their own signal handlers.
    struct DeleteLater
    {
        void operator()(QObject *object) const { object->deleteLater(); }
    };
    std::unique_ptr<QProcess, DeleteLater> m_serverProcess;
    std::unique_ptr<PairingListener, DeleteLater> m_pairingListener;
    qint64 m_serverPid = 0;
    // Tells a child's exit notice apart from its successor's after a restart.
    quint64 m_generation = 0;
};
