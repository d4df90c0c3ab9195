#include "platform/sockethold.h"

namespace platform {

// Not held on macOS yet: a reset reads as a connection that sent nothing, and a peer that closes
// its sending side after its request goes unanswered.
SocketHold::SocketHold(qintptr) { }

bool SocketHold::wasReset() const
{
    return false;
}

QTcpSocket *SocketHold::takeForReply(QObject *)
{
    return nullptr;
}

void SocketHold::release() { }

} // namespace platform
