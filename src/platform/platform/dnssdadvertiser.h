#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QSocketNotifier;
struct _DNSServiceRef_t;

namespace platform {

// One DNS-SD service registration through the system's daemon (mDNSResponder on macOS, Avahi's
// compatibility library on Linux). The daemon's socket is served by the Qt event loop.
class DnsSdAdvertiser : public QObject
{
    Q_OBJECT

public:
    explicit DnsSdAdvertiser(QObject *parent = nullptr);
    ~DnsSdAdvertiser() override;

    // Registers name and type in the default domain with no TXT record. False when the daemon
    // refused at once (errorString() says why); otherwise registered() or failed() follows.
    bool advertise(const QString &name, const QString &type, quint16 port);
    void withdraw();
    QString errorString() const { return m_error; }

Q_SIGNALS:
    // The name the daemon settled on, which differs from the asked one after a conflict.
    void registered(const QString &name);
    void failed(const QString &error);

private:
    static QString describe(int code);
    void onRegisterReply(int code, const QString &name);

    _DNSServiceRef_t *m_service = nullptr;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QString m_error;
};

} // namespace platform
