#pragma once

#include "platform/dnssddaemonwatch.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>

class QSocketNotifier;
struct _DNSServiceRef_t;

namespace platform {

// One DNS-SD service registration through the system's daemon (mDNSResponder on macOS, Avahi's
// compatibility library on Linux). The daemon's socket is served by the Qt event loop. The
// registration outlives the daemon: when it is not running yet, or goes away and comes back, the
// service is registered again as soon as it answers. Waiting for it costs no wakeups: the daemon
// is asked again when there is a sign of it, and otherwise after pauses that double up to minutes.
class DnsSdAdvertiser : public QObject
{
    Q_OBJECT

public:
    // The pause before a daemon that did not answer is asked again, doubled after each attempt
    // that fails up to the longest; a sign of the daemon cuts it short.
    static constexpr std::chrono::milliseconds retryInterval { 1000 };
    static constexpr std::chrono::minutes longestRetryInterval { 5 };

    explicit DnsSdAdvertiser(QObject *parent = nullptr);
    ~DnsSdAdvertiser() override;

    // Registers name and type in the default domain with no TXT record, and keeps it registered
    // until withdraw(). False when the daemon refused at once (errorString() says why; it is
    // asked again); otherwise registered() or failed() follows.
    bool advertise(const QString &name, const QString &type, quint16 port);
    void withdraw();
    QString errorString() const { return m_error; }

Q_SIGNALS:
    // The name the daemon settled on, which differs from the asked one after a conflict; again
    // after each registration that follows a lost daemon.
    void registered(const QString &name);
    // Once when the registration is lost, not for every retry that follows.
    void failed(const QString &error);

private:
    static QString describe(int code);
    bool registerService(bool announceFailure);
    void release();
    void lost(const QString &error, bool announce);
    void onRegisterReply(int code, const QString &name);

    _DNSServiceRef_t *m_service = nullptr;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QString m_error;
    QString m_name;
    QString m_type;
    quint16 m_port = 0;
    bool m_wanted = false;
    bool m_failing = false;
    QTimer m_retry;
    std::chrono::milliseconds m_nextRetry = retryInterval;
    DnsSdDaemonWatch m_daemon;
};

} // namespace platform
