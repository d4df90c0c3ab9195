#include "control/windowservice.h"

#include "control/controlservice.h"

#include <QDBusConnection>
#include <QDBusMessage>

WindowService::WindowService(std::function<void()> show, QObject *parent)
    : QObject(parent)
    , m_show(std::move(show))
{
    QDBusConnection::sessionBus().registerObject(QString::fromLatin1(objectPath), this,
                                                 QDBusConnection::ExportAllSlots);
}

bool WindowService::ShowPanel()
{
    if (!m_show)
        return false;
    m_show();
    return true;
}

WindowService::Answer WindowService::askToShowPanel()
{
    const QDBusMessage call = QDBusMessage::createMethodCall(
        QString::fromLatin1(ControlService::serviceName), QString::fromLatin1(objectPath),
        QString::fromLatin1(interfaceName), QStringLiteral("ShowPanel"));
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 5000);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return Answer::NoAnswer;
    return reply.arguments().value(0).toBool() ? Answer::Shown : Answer::Headless;
}

// English, as the console line it also is; quivractl shows it translated.
QString WindowService::headlessMessage()
{
    return QStringLiteral(QT_TRANSLATE_NOOP(
        "quivractl",
        "QuivraMac is running without a display (as the user service, for example), so it has no "
        "window to show here. To use it on this desktop, stop that instance and start it again "
        "from here: systemctl --user stop quivramac && quivramac"));
}
