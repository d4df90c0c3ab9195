#pragma once

#include <QtGlobal>

namespace platform {

// Tells whether the peer of a TCP socket ended it with a reset rather than by closing it: Qt
// reads both as the end of the stream, and closes its descriptor before saying so. The watch
// keeps its own reference to the socket until released, so that it can still be asked then.
class SocketResetWatch
{
public:
    explicit SocketResetWatch(qintptr descriptor);
    ~SocketResetWatch() { release(); }
    SocketResetWatch(const SocketResetWatch &) = delete;
    SocketResetWatch &operator=(const SocketResetWatch &) = delete;

    bool wasReset() const;
    // Lets the socket close; wasReset() is false from then on.
    void release();

private:
    int m_descriptor = -1;
};

} // namespace platform
