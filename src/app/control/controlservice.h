#pragma once

#include <QDBusAbstractAdaptor>
#include <QMetaProperty>
#include <QObject>
#include <QStringList>
#include <QTimer>

class ServerManager;

// The app's door for scripts and the quivractl command: ServerManager on the user's session bus
// as org.quivra.QuivraMac /ServerManager. Holding the bus name also keeps the app single-instance.
class ControlService : public QObject
{
    Q_OBJECT

public:
    enum class Claim { Claimed, AlreadyRunning, NoSessionBus };

    static constexpr auto serviceName = "org.quivra.QuivraMac";
    static constexpr auto objectPath = "/ServerManager";
    static constexpr auto interfaceName = "org.quivra.QuivraMac.ServerManager";

    // Takes the bus name; call before anything touches the machine.
    static Claim claimName();
    // Exports the manager's properties and operations; they run on the main thread.
    static void publish(ServerManager *manager);
};

// The exported interface. Properties are read-only and announced through PropertiesChanged.
class ServerManagerAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quivra.QuivraMac.ServerManager")
    Q_PROPERTY(bool isRunning READ isRunning)
    Q_PROPERTY(double uptime READ uptime)
    Q_PROPERTY(int port READ port)
    Q_PROPERTY(QString pairingToken READ pairingToken)
    Q_PROPERTY(QString localIP READ localIP)
    Q_PROPERTY(bool isPairing READ isPairing)
    Q_PROPERTY(QString logs READ logs)
    Q_PROPERTY(QString lastPairedDevice READ lastPairedDevice)
    Q_PROPERTY(qlonglong pairingExpiresAt READ pairingExpiresAt)
    Q_PROPERTY(QStringList pairingGuessers READ pairingGuessers)
    Q_PROPERTY(QString failureReason READ failureReason)

public:
    explicit ServerManagerAdaptor(ServerManager *manager);

    bool isRunning() const;
    double uptime() const;
    int port() const;
    QString pairingToken() const;
    QString localIP() const;
    bool isPairing() const;
    QString logs() const;
    QString lastPairedDevice() const;
    qlonglong pairingExpiresAt() const;
    QStringList pairingGuessers() const;
    QString failureReason() const;

public Q_SLOTS:
    void StartServer();
    void StopServer();
    void TogglePairingMode();
    QString Logs() const;
    // The paired phones as a JSON array of {name, keyType, fingerprint, keyComment, pairedAt,
    // address}, newest first.
    QString Devices() const;
    // Revokes one phone by name or fingerprint; false with the reason when it could not.
    bool Revoke(const QString &nameOrFingerprint, QString &message);

Q_SIGNALS:
    void DevicesChanged();
    // One per finished pairing, after its key is stored: the phone's name, its key's
    // fingerprint, when it paired (ISO 8601, UTC) and its address.
    void Paired(const QString &name, const QString &fingerprint, const QString &pairedAt,
                const QString &address);

private Q_SLOTS:
    void announceChange();

private:
    void announce(const QMetaProperty &property);

    ServerManager *m_manager;
    QMetaProperty m_logs;
    QTimer m_logsThrottle;
    bool m_logsPending = false;
};
