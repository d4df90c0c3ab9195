#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

class QTcpSocket;

// Asks whether the local SSH daemon accepts connections. One probe connection at a time, and a
// verdict is reused for a while, so that a burst of status requests cannot hammer the daemon.
class SshProbe : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds timeout { 2000 };
    static constexpr std::chrono::milliseconds reuseFor { 2000 };

    explicit SshProbe(QString host = QStringLiteral("127.0.0.1"), quint16 port = 22,
                      QObject *parent = nullptr);
    ~SshProbe() override;

    // How long an unanswered connection waits for its verdict.
    void setTimeout(std::chrono::milliseconds timeout) { m_timeout.setInterval(timeout); }

    // Calls done exactly once, on this thread and never from within this call, unless context
    // is destroyed first.
    void probe(QObject *context, std::function<void(bool accepting)> done);
    // The last verdict while it is reused, for a caller that can take it at once.
    std::optional<bool> reusableVerdict() const;

private:
    void start();
    void deliver(bool accepting);

    QString m_host;
    quint16 m_port;
    QTcpSocket *m_socket = nullptr;
    QTimer m_timeout;
    QElapsedTimer m_lastVerdictAge;
    bool m_lastVerdict = false;
    struct Waiter
    {
        QPointer<QObject> context;
        std::function<void(bool)> done;
    };
    QList<Waiter> m_waiters;
};
