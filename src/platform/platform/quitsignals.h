#pragma once

class QCoreApplication;

namespace platform {

// SIGTERM, SIGINT and SIGHUP (logout, Ctrl-C, a service manager) end the event loop cleanly, so
// that the normal quit path runs and stops the server.
void quitOnTerminationSignals(QCoreApplication &app);

} // namespace platform
