#include "control/pairingnotifier.h"

#include "platform/logging.h"
#include "server/servermanager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

PairingNotifier::PairingNotifier(ServerManager *manager, QObject *parent)
    : QObject(parent)
{
    connect(&manager->phones(), &PhoneService::paired, this, &PairingNotifier::notify);
}

void PairingNotifier::notify(const PairedDevice &device)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    call << QStringLiteral("QuivraMac") << uint(0) << QStringLiteral("quivramac")
         << QStringLiteral("Phone paired")
         // The name is the phone's own and the body is markup to most notification services: a
         // name holding a tag would be rendered or fetched. The summary stays fixed, since some
         // services read markup there too.
         << QStringLiteral("%1 can now log in to this computer. Key %2")
                .arg(device.name.toHtmlEscaped(), device.fingerprint.toHtmlEscaped())
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
