#pragma once

#include "pairing/phoneservice.h"
#include "platform/logging.h"
#include "server/serverenvironment.h"
#include "server/serverlog.h"
#include "server/serversupervisor.h"

#include <QObject>
#include <QString>
#include <QStringList>

// What the views, the session bus and quivractl observe: one view over the two parts that do
// the work, the server's supervisor and the phone service, plus the app's log. It holds no
// state of theirs; every property is read through. All of it lives on the main thread.
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
    // The newest of the paired phones that can still log in; empty while there is none.
    Q_PROPERTY(QString lastPairedDevice READ lastPairedDevice NOTIFY lastPairedDeviceChanged)
    Q_PROPERTY(PairingSession *pairingSession READ pairingSession CONSTANT)
    // When the current code expires, in milliseconds since the epoch.
    Q_PROPERTY(qint64 pairingExpiresAt READ pairingExpiresAt NOTIFY pairingExpiresAtChanged)
    // Where someone is guessing the current code from; empty while nobody is.
    Q_PROPERTY(QStringList pairingGuessers READ pairingGuessers NOTIFY pairingGuessersChanged)
    // Why the server is not running, or why phones cannot pair, in plain words; empty when
    // nothing is wrong.
    Q_PROPERTY(QString failureReason READ failureReason NOTIFY failureReasonChanged)

public:
    // Cleans up servers an earlier run left behind, then starts the server when
    // "autoStartServer" is on; the phone service listens from here on.
    explicit ServerManager(ServerEnvironment environment = {}, QObject *parent = nullptr);
    ~ServerManager() override;

    bool isRunning() const { return m_server.isRunning(); }
    double uptime() const { return m_server.uptime(); }
    // uptimeChanged comes every second only while a view shows the uptime.
    void watchUptime(bool on) { m_server.watchUptime(on); }
    int port() const { return m_server.port(); }
    QString pairingToken() const { return m_phones.session().token(); }
    QString localIP() const { return m_phones.localIP(); }
    bool isPairing() const { return m_phones.session().isPairing(); }
    qint64 pairingExpiresAt() const { return m_phones.session().expiresAt(); }
    QStringList pairingGuessers() const { return m_phones.session().guessers(); }
    QString logs() const { return m_log.text(); }
    // Replaces the whole log; clearing it from the settings window assigns an empty text.
    void setLogs(const QString &logs);
    QString lastPairedDevice() const { return m_phones.lastPairedDevice(); }
    PairingSession *pairingSession() { return &m_phones.session(); }
    // In the user's language: the windows, the tray and quivractl show it as it is.
    QString failureReason() const { return m_failureReason; }

    Q_INVOKABLE void startServer() { m_server.start(); }
    // Returns at once; the server is gone within about 2.1 s.
    Q_INVOKABLE void stopServer() { m_server.stop(); }
    Q_INVOKABLE void togglePairingMode() { m_phones.togglePairingMode(); }
    static QString generatePairingToken() { return PairingSession::generateToken(); }

    const ServerEnvironment &environment() const { return m_env; }
    ServerSupervisor &supervisor() { return m_server; }
    const ServerSupervisor &supervisor() const { return m_server; }
    PhoneService &phones() { return m_phones; }
    const PhoneService &phones() const { return m_phones; }

Q_SIGNALS:
    void isRunningChanged();
    void uptimeChanged();
    void pairingTokenChanged();
    void localIPChanged();
    void isPairingChanged();
    void logsChanged();
    void lastPairedDeviceChanged();
    void pairingExpiresAtChanged();
    void pairingGuessersChanged();
    void failureReasonChanged();

private:
    void appendToLog(logging::Entry kind, const QString &text);
    void updateFailureReason();

    ServerEnvironment m_env;
    ServerLog m_log;
    logging::AppLog m_previousAppLog;
    ServerSupervisor m_server;
    PhoneService m_phones;
    // The server's reason, else the listener's: kept only to announce a change once.
    QString m_failureReason;
};
