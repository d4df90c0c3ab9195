#include "platform/dnssddaemonwatch.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>

namespace platform {
namespace {

const QString busName = QStringLiteral("quivra-dnssd-daemon-watch");

// Where the system bus listens: the address the environment names, else D-Bus's default. The
// DNS-SD library connects to the same.
QString systemBusSocket()
{
    const QList<QByteArray> addresses = qgetenv("DBUS_SYSTEM_BUS_ADDRESS").split(';');
    for (const QByteArray &address : addresses) {
        if (!address.startsWith("unix:"))
            continue;
        const QList<QByteArray> keys = address.mid(5).split(',');
        for (const QByteArray &key : keys) {
            if (key.startsWith("path="))
                return QString::fromLocal8Bit(QByteArray::fromPercentEncoding(key.mid(5)));
        }
    }
    return QStringLiteral("/run/dbus/system_bus_socket");
}

} // namespace

struct DnsSdDaemonWatch::Watches
{
    QString socket = systemBusSocket();
    // The socket's folder, or the nearest one above that exists: the socket appears there when
    // the bus starts.
    QFileSystemWatcher folder;
    std::unique_ptr<QDBusServiceWatcher> name;
};

DnsSdDaemonWatch::DnsSdDaemonWatch(QObject *parent)
    : QObject(parent)
{ }

DnsSdDaemonWatch::~DnsSdDaemonWatch()
{
    stop();
}

void DnsSdDaemonWatch::start()
{
    if (m_watches)
        return;
    m_watches = std::make_unique<Watches>();
    Watches &watches = *m_watches;
    const auto watchFolder = [&watches] {
        QString folder = QFileInfo(watches.socket).absolutePath();
        while (!QFileInfo(folder).isDir() && folder != QDir::rootPath())
            folder = QFileInfo(folder).absolutePath();
        const QStringList watched = watches.folder.directories();
        if (watched.contains(folder))
            return;
        if (!watched.isEmpty())
            watches.folder.removePaths(watched);
        watches.folder.addPath(folder);
    };
    // A fresh connection each time the socket is there, as a bus that went away takes the
    // earlier one with it.
    const auto watchName = [this, &watches] {
        if (watches.name && watches.name->connection().isConnected())
            return;
        watches.name.reset();
        QDBusConnection::disconnectFromBus(busName);
        if (!QFileInfo::exists(watches.socket))
            return;
        const QDBusConnection bus =
            QDBusConnection::connectToBus(QDBusConnection::SystemBus, busName);
        if (!bus.isConnected())
            return;
        watches.name =
            std::make_unique<QDBusServiceWatcher>(QStringLiteral("org.freedesktop.Avahi"), bus,
                                                  QDBusServiceWatcher::WatchForRegistration);
        connect(watches.name.get(), &QDBusServiceWatcher::serviceRegistered, this,
                &DnsSdDaemonWatch::mayHaveStarted);
    };
    connect(&watches.folder, &QFileSystemWatcher::directoryChanged, this,
            [this, watchFolder, watchName] {
                watchFolder();
                watchName();
                Q_EMIT mayHaveStarted();
            });
    watchFolder();
    watchName();
}

void DnsSdDaemonWatch::stop()
{
    if (!m_watches)
        return;
    m_watches.reset();
    QDBusConnection::disconnectFromBus(busName);
}

} // namespace platform
