#include "platform/dnssdadvertiser.h"

#include <QSocketNotifier>

#include <arpa/inet.h>
#include <dns_sd.h>

namespace platform {

DnsSdAdvertiser::DnsSdAdvertiser(QObject *parent)
    : QObject(parent)
{
    // Avahi's compatibility layer otherwise prints a warning to stderr on first use.
    qputenv("AVAHI_COMPAT_NOWARN", "1");
}

DnsSdAdvertiser::~DnsSdAdvertiser()
{
    withdraw();
}

bool DnsSdAdvertiser::advertise(const QString &name, const QString &type, quint16 port)
{
    withdraw();
    const auto reply = [](DNSServiceRef, DNSServiceFlags, DNSServiceErrorType code,
                          const char *registeredName, const char *, const char *, void *context) {
        static_cast<DnsSdAdvertiser *>(context)->onRegisterReply(
            code, QString::fromUtf8(registeredName ? registeredName : ""));
    };
    const DNSServiceErrorType code = DNSServiceRegister(
        &m_service, 0, kDNSServiceInterfaceIndexAny, name.toUtf8().constData(),
        type.toUtf8().constData(), nullptr, nullptr, htons(port), 0, nullptr, reply, this);
    if (code != kDNSServiceErr_NoError) {
        m_service = nullptr;
        m_error = describe(code);
        return false;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(DNSServiceRefSockFD(m_service), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        if (m_service && DNSServiceProcessResult(m_service) != kDNSServiceErr_NoError) {
            m_error = QStringLiteral("the DNS-SD daemon closed the connection");
            withdraw();
            Q_EMIT failed(m_error);
        }
    });
    return true;
}

void DnsSdAdvertiser::withdraw()
{
    m_notifier.reset();
    if (m_service) {
        DNSServiceRefDeallocate(m_service);
        m_service = nullptr;
    }
}

void DnsSdAdvertiser::onRegisterReply(int code, const QString &name)
{
    if (code == kDNSServiceErr_NoError) {
        Q_EMIT registered(name);
        return;
    }
    m_error = describe(code);
    Q_EMIT failed(m_error);
}

QString DnsSdAdvertiser::describe(int code)
{
    switch (code) {
    case -65563: // kDNSServiceErr_ServiceNotRunning, which older headers lack
    case kDNSServiceErr_Unknown: // what Avahi's compatibility layer answers without a daemon
        return QStringLiteral("no DNS-SD daemon is running (error %1)").arg(code);
    case kDNSServiceErr_NameConflict:
        return QStringLiteral("the name is already registered on this network");
    default:
        return QStringLiteral("DNS-SD error %1").arg(code);
    }
}

} // namespace platform
