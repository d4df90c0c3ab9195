#include "controlclient.h"

#include "control/controlservice.h"
#include "text.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>

ControlClient::ControlClient()
    : m_interface(QString::fromLatin1(ControlService::serviceName),
                  QString::fromLatin1(ControlService::objectPath),
                  QString::fromLatin1(ControlService::interfaceName), QDBusConnection::sessionBus())
{
    QDBusConnection::sessionBus().connect(
        QString::fromLatin1(ControlService::serviceName),
        QString::fromLatin1(ControlService::objectPath),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
        this, SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
    QDBusConnection::sessionBus().connect(QString::fromLatin1(ControlService::serviceName),
                                          QString::fromLatin1(ControlService::objectPath),
                                          QString::fromLatin1(ControlService::interfaceName),
                                          QStringLiteral("Paired"), this,
                                          SLOT(onPaired(QString, QString, QString, QString)));
}

void ControlClient::onPaired(const QString &name, const QString &fingerprint, const QString &,
                             const QString &)
{
    Q_EMIT paired(name, fingerprint);
}

QString ControlClient::unreachableReason() const
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Text::tr("No session bus, so QuivraMac cannot be reached. Run quivractl in the "
                        "same login session as the app.");
    if (!bus.interface()->isServiceRegistered(QString::fromLatin1(ControlService::serviceName)))
        return Text::tr("QuivraMac is not running. Start it with \"quivramac\" or \"systemctl "
                        "--user start quivramac\".");
    return {};
}

QVariant ControlClient::property(const char *name) const
{
    return m_interface.property(name);
}

std::optional<QVariant> ControlClient::call(const QString &method)
{
    const auto reply = callWith(method, {});
    return reply ? std::optional(reply->value(0)) : std::nullopt;
}

std::optional<QVariantList> ControlClient::callWith(const QString &method,
                                                    const QVariantList &arguments)
{
    const QDBusMessage reply = m_interface.callWithArgumentList(QDBus::Block, method, arguments);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        // The app's own failure says what went wrong; any other error means it did not answer.
        m_lastError = reply.errorName() == QLatin1String(ControlService::failedError)
            ? reply.errorMessage()
            : Text::tr("QuivraMac did not answer: %1").arg(reply.errorMessage());
        return std::nullopt;
    }
    return reply.arguments();
}

void ControlClient::onPropertiesChanged(const QString &interface, const QVariantMap &changed,
                                        const QStringList &)
{
    if (interface != QLatin1String(ControlService::interfaceName))
        return;
    for (auto it = changed.cbegin(); it != changed.cend(); ++it)
        Q_EMIT propertyChanged(it.key(), it.value());
}
