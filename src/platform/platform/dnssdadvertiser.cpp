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
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, [this] {
        release();
        if (m_wanted)
            registerService(true);
    });
    connect(&m_daemon, &DnsSdDaemonWatch::mayHaveStarted, this, [this] {
        m_nextRetry = retryInterval;
        if (m_retry.isActive())
            m_retry.start(0);
    });
}

DnsSdAdvertiser::~DnsSdAdvertiser()
{
    withdraw();
}

bool DnsSdAdvertiser::advertise(const QString &name, const QString &type, quint16 port)
{
    withdraw();
    m_name = name;
    m_type = type;
    m_port = port;
    m_wanted = true;
    m_failing = false;
    // A refusal at once is told by the result, not by failed().
    return registerService(false);
}

bool DnsSdAdvertiser::registerService(bool announceFailure)
{
    const auto reply = [](DNSServiceRef, DNSServiceFlags, DNSServiceErrorType code,
                          const char *registeredName, const char *, const char *, void *context) {
        static_cast<DnsSdAdvertiser *>(context)->onRegisterReply(
            code, QString::fromUtf8(registeredName ? registeredName : ""));
    };
    const DNSServiceErrorType code = DNSServiceRegister(
        &m_service, 0, kDNSServiceInterfaceIndexAny, m_name.toUtf8().constData(),
        m_type.toUtf8().constData(), nullptr, nullptr, htons(m_port), 0, nullptr, reply, this);
    if (code != kDNSServiceErr_NoError) {
        m_service = nullptr;
        lost(describe(code), announceFailure);
        return false;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(DNSServiceRefSockFD(m_service), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        if (m_service && DNSServiceProcessResult(m_service) != kDNSServiceErr_NoError) {
            // Released here, outside the library's own call.
            release();
            lost(QStringLiteral("the DNS-SD daemon closed the connection"), true);
        }
    });
    return true;
}

void DnsSdAdvertiser::withdraw()
{
    m_wanted = false;
    m_retry.stop();
    m_daemon.stop();
    m_nextRetry = retryInterval;
    release();
}

void DnsSdAdvertiser::release()
{
    m_notifier.reset();
    if (m_service) {
        DNSServiceRefDeallocate(m_service);
        m_service = nullptr;
    }
}

// The reference is not released here: this may run inside the library's own callback. The
// retry releases it first.
void DnsSdAdvertiser::lost(const QString &error, bool announce)
{
    m_error = error;
    if (m_wanted) {
        m_retry.start(m_nextRetry);
        m_nextRetry = std::min<std::chrono::milliseconds>(m_nextRetry * 2, longestRetryInterval);
        m_daemon.start();
    }
    if (!std::exchange(m_failing, true) && announce)
        Q_EMIT failed(m_error);
}

void DnsSdAdvertiser::onRegisterReply(int code, const QString &name)
{
    if (code == kDNSServiceErr_NoError) {
        m_failing = false;
        m_nextRetry = retryInterval;
        m_daemon.stop();
        Q_EMIT registered(name);
        return;
    }
    lost(describe(code), true);
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
