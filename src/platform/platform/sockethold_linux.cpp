#include "platform/sockethold.h"

#include <QTcpSocket>

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace platform {

SocketHold::SocketHold(qintptr descriptor)
    : m_descriptor(descriptor < 0 ? -1 : ::fcntl(int(descriptor), F_DUPFD_CLOEXEC, 0))
{ }

bool SocketHold::wasReset() const
{
    // A closing peer leaves the socket waiting for our close; a reset leaves it closed.
    tcp_info info {};
    socklen_t size = sizeof info;
    return m_descriptor >= 0 && ::getsockopt(m_descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) == 0
        && info.tcpi_state == TCP_CLOSE;
}

QTcpSocket *SocketHold::takeForReply(QObject *parent)
{
    if (wasReset() || m_descriptor < 0)
        return nullptr;
    auto *socket = new QTcpSocket(parent);
    if (!socket->setSocketDescriptor(m_descriptor, QAbstractSocket::ConnectedState,
                                     QIODevice::WriteOnly)) {
        delete socket;
        release();
        return nullptr;
    }
    m_descriptor = -1; // the socket's own now
    return socket;
}

void SocketHold::release()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

} // namespace platform
