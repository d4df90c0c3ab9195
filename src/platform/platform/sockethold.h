#pragma once

#include <QtGlobal>

class QObject;
class QTcpSocket;

namespace platform {

// A reference of its own to a connected TCP socket, beside Qt's. Qt reads a reset and the peer's
// end of stream alike, and closes its descriptor at either before saying so; through this one the
// socket can still be asked which it was, and a peer that only closed its sending side (HTTP
// clients may, once their request is out) can still be answered.
class SocketHold
{
public:
    explicit SocketHold(qintptr descriptor);
    ~SocketHold() { release(); }
    SocketHold(const SocketHold &) = delete;
    SocketHold &operator=(const SocketHold &) = delete;

    bool isHeld() const { return m_descriptor >= 0; }
    bool wasReset() const;
    // Hands the reference over as a socket of its own, open for writing the reply; null when
    // none is held or the connection was reset.
    QTcpSocket *takeForReply(QObject *parent);
    // Lets the socket close once Qt closes its own; wasReset() is false from then on.
    void release();

private:
    int m_descriptor = -1;
};

} // namespace platform
