#include "platform/trayhost.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace {
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
}

TrayHost::TrayHost(bool watchNative, QObject *parent)
    : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        const QString service = QString::fromLatin1(watcherService);
        auto *watcher =
            new QDBusServiceWatcher(service, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
        connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
                &TrayHost::checkStatusNotifier);
        // A watcher without a host shows nothing; hosts come and go behind the same watcher.
        for (const char *signal :
             { "StatusNotifierHostRegistered", "StatusNotifierHostUnregistered" })
            bus.connect(service, watcherPath, service, QString::fromLatin1(signal), this,
                        SLOT(checkStatusNotifier()));
        checkStatusNotifier();
    }
    if (watchNative)
        m_nativeWatch = watchNativeTray();
}

TrayHost::~TrayHost() = default;

void TrayHost::checkStatusNotifier()
{
    const QString service = QString::fromLatin1(watcherService);
    QDBusMessage get = QDBusMessage::createMethodCall(
        service, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    get << service << QStringLiteral("IsStatusNotifierHostRegistered");
    // The same question Qt asks when it chooses between StatusNotifierItem and XEmbed, so the
    // answer here matches the protocol the item will use. A hung watcher counts as none.
    const QDBusMessage reply = QDBusConnection::sessionBus().call(get, QDBus::Block, 2000);
    setStatusNotifier(reply.type() == QDBusMessage::ReplyMessage
                      && reply.arguments().value(0).value<QDBusVariant>().variant().toBool());
}

void TrayHost::setStatusNotifier(bool on)
{
    if (std::exchange(m_statusNotifier, on) != on)
        Q_EMIT availableChanged();
}

void TrayHost::setNative(bool on)
{
    if (std::exchange(m_native, on) != on)
        Q_EMIT availableChanged();
}
