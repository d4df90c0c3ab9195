#include "diagnostics/sshprobe.h"

#include <QTcpSocket>

SshProbe::SshProbe(QString host, quint16 port, QObject *parent)
    : QObject(parent)
    , m_host(std::move(host))
    , m_port(port)
{
    m_timeout.setSingleShot(true);
    m_timeout.setInterval(timeout);
    connect(&m_timeout, &QTimer::timeout, this, [this] { deliver(false); });
}

SshProbe::~SshProbe()
{
    if (m_socket)
        m_socket->abort();
}

std::optional<bool> SshProbe::reusableVerdict() const
{
    if (!m_socket && m_lastVerdictAge.isValid() && m_lastVerdictAge.elapsed() < reuseFor.count())
        return m_lastVerdict;
    return std::nullopt;
}

void SshProbe::probe(QObject *context, std::function<void(bool)> done)
{
    if (const std::optional<bool> verdict = reusableVerdict()) {
        QMetaObject::invokeMethod(
            context, [done = std::move(done), verdict = *verdict] { done(verdict); },
            Qt::QueuedConnection);
        return;
    }
    m_waiters.append({ context, std::move(done) });
    if (!m_socket)
        start();
}

void SshProbe::start()
{
    m_socket = new QTcpSocket(this);
    // Whichever of connected, error and time-out comes first decides; deliver() ends the
    // attempt, so the others find no socket and do nothing.
    connect(m_socket, &QTcpSocket::connected, this, [this] { deliver(true); });
    connect(m_socket, &QTcpSocket::errorOccurred, this, [this] { deliver(false); });
    m_timeout.start();
    m_socket->connectToHost(m_host, m_port);
}

void SshProbe::deliver(bool accepting)
{
    if (!m_socket)
        return;
    m_timeout.stop();
    QTcpSocket *socket = std::exchange(m_socket, nullptr);
    socket->disconnect(this);
    if (accepting)
        socket->disconnectFromHost(); // a polite close, so the daemon logs no reset
    else
        socket->abort();
    socket->deleteLater();
    m_lastVerdict = accepting;
    m_lastVerdictAge.start();
    const QList<Waiter> waiters = std::exchange(m_waiters, {});
    for (const Waiter &waiter : waiters) {
        if (waiter.context)
            QMetaObject::invokeMethod(
                waiter.context, [done = waiter.done, accepting] { done(accepting); },
                Qt::QueuedConnection);
    }
}
