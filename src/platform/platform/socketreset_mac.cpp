#include "platform/socketreset.h"

namespace platform {

// Not told apart on macOS yet: a reset reads as a connection that sent nothing.
SocketResetWatch::SocketResetWatch(qintptr) { }

bool SocketResetWatch::wasReset() const
{
    return false;
}

void SocketResetWatch::release() { }

} // namespace platform
