#include "control/controlservice.h"

#include "server/servermanager.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaProperty>

#include <utility>

ControlService::Claim ControlService::claimName()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Claim::NoSessionBus;
    // No queueing and no replacement: a second instance must find the name taken.
    const auto reply = bus.interface()->registerService(
        QString::fromLatin1(serviceName), QDBusConnectionInterface::DontQueueService,
        QDBusConnectionInterface::DontAllowReplacement);
    return reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered
        ? Claim::Claimed
        : Claim::AlreadyRunning;
}

void ControlService::publish(ServerManager *manager)
{
    new ServerManagerAdaptor(manager);
    QDBusConnection::sessionBus().registerObject(QString::fromLatin1(objectPath), manager,
                                                 QDBusConnection::ExportAdaptors);
}

ServerManagerAdaptor::ServerManagerAdaptor(ServerManager *manager)
    : QDBusAbstractAdaptor(manager)
    , m_manager(manager)
{
    PhoneService &phones = manager->phones();
    connect(&phones.devices(), &DeviceRegistry::devicesChanged, this,
            &ServerManagerAdaptor::DevicesChanged);
    connect(&phones, &PhoneService::paired, this, [this](const PairedDevice &device) {
        Q_EMIT Paired(device.name, device.fingerprint, device.pairedAt.toString(Qt::ISODate),
                      device.address);
    });
    // Every observable property of the manager is announced when it changes, except the uptime:
    // it is worked out when read, and announcing it every second would wake the bus for nothing.
    const QMetaObject *meta = manager->metaObject();
    const QMetaMethod onChange =
        metaObject()->method(metaObject()->indexOfSlot("announceChange()"));
    const int uptime = meta->indexOfProperty("uptime");
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        if (i != uptime && meta->property(i).hasNotifySignal())
            connect(manager, meta->property(i).notifySignal(), this, onChange);
    }
    // The log changes with every chunk of server output: its first change goes out at once,
    // later ones within the interval together.
    m_logs = meta->property(meta->indexOfProperty("logs"));
    m_logsThrottle.setSingleShot(true);
    m_logsThrottle.setInterval(100);
    connect(&m_logsThrottle, &QTimer::timeout, this, [this] {
        if (std::exchange(m_logsPending, false)) {
            announce(m_logs);
            m_logsThrottle.start();
        }
    });
}

void ServerManagerAdaptor::announceChange()
{
    const QMetaObject *meta = m_manager->metaObject();
    const int signal = senderSignalIndex();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.notifySignalIndex() != signal)
            continue;
        if (property.propertyIndex() != m_logs.propertyIndex()) {
            announce(property);
        } else if (m_logsThrottle.isActive()) {
            m_logsPending = true;
        } else {
            announce(property);
            m_logsThrottle.start();
        }
    }
}

void ServerManagerAdaptor::announce(const QMetaProperty &property)
{
    QDBusMessage message = QDBusMessage::createSignal(
        QString::fromLatin1(ControlService::objectPath),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
    message << QString::fromLatin1(ControlService::interfaceName)
            << QVariantMap { { QString::fromLatin1(property.name()), property.read(m_manager) } }
            << QStringList();
    QDBusConnection::sessionBus().send(message);
}

bool ServerManagerAdaptor::isRunning() const
{
    return m_manager->isRunning();
}
double ServerManagerAdaptor::uptime() const
{
    return m_manager->uptime();
}
int ServerManagerAdaptor::port() const
{
    return m_manager->port();
}
QString ServerManagerAdaptor::pairingToken() const
{
    return m_manager->pairingToken();
}
QString ServerManagerAdaptor::localIP() const
{
    return m_manager->localIP();
}
bool ServerManagerAdaptor::isPairing() const
{
    return m_manager->isPairing();
}
QString ServerManagerAdaptor::logs() const
{
    return m_manager->logs();
}
QString ServerManagerAdaptor::lastPairedDevice() const
{
    return m_manager->lastPairedDevice();
}

qlonglong ServerManagerAdaptor::pairingExpiresAt() const
{
    return m_manager->pairingExpiresAt();
}

QStringList ServerManagerAdaptor::pairingGuessers() const
{
    return m_manager->pairingGuessers();
}

QString ServerManagerAdaptor::failureReason() const
{
    return m_manager->failureReason();
}

QString ServerManagerAdaptor::Devices() const
{
    QJsonArray list;
    const QList<PairedDevice> devices = m_manager->phones().devices().devices();
    for (const PairedDevice &device : devices) {
        list.append(
            QJsonObject { { QStringLiteral("name"), device.name },
                          { QStringLiteral("keyType"), device.keyType },
                          { QStringLiteral("fingerprint"), device.fingerprint },
                          { QStringLiteral("keyComment"), device.keyComment },
                          { QStringLiteral("pairedAt"), device.pairedAt.toString(Qt::ISODate) },
                          { QStringLiteral("address"), device.address } });
    }
    return QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
}

bool ServerManagerAdaptor::Revoke(const QString &nameOrFingerprint, QString &message)
{
    const DeviceRegistry::Revocation result =
        m_manager->phones().devices().revoke(nameOrFingerprint);
    message = result.message;
    return result.ok;
}

void ServerManagerAdaptor::StartServer()
{
    m_manager->startServer();
}
void ServerManagerAdaptor::StopServer()
{
    m_manager->stopServer();
}
void ServerManagerAdaptor::TogglePairingMode()
{
    m_manager->togglePairingMode();
}
QString ServerManagerAdaptor::Logs() const
{
    return m_manager->logs();
}
