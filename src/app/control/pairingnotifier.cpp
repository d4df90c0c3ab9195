#include "control/pairingnotifier.h"

#include "platform/logging.h"
#include "server/servermanager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

PairingNotifier::PairingNotifier(ServerManager *manager, QObject *parent)
    : QObject(parent)
    , m_manager(manager)
{
    connect(manager, &ServerManager::lastPairedDeviceChanged, this,
            [this] { notify(m_manager->lastPairedDevice()); });
}

void PairingNotifier::notify(const QString &device)
{
    if (device.isEmpty())
        return;
    // The newest entry is the phone that just paired.
    const QList<PairedDevice> devices = m_manager->devices().devices();
    const QString fingerprint = devices.isEmpty() ? QString() : devices.constFirst().fingerprint;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    call << QStringLiteral("QuivraMac") << uint(0) << QStringLiteral("quivramac")
         << QStringLiteral("Paired with %1").arg(device)
         << QStringLiteral("It can now log in to this computer. Key %1").arg(fingerprint)
         << QStringList() << QVariantMap() << int(-1);
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (!watcher->isError() || std::exchange(m_toldUnavailable, true))
            return;
        qCInfo(lcConsole).nospace().noquote()
            << QStringLiteral("No desktop notifications (%1): pairings are only logged")
                   .arg(watcher->error().message());
    });
}
