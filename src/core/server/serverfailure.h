#pragma once

#include <QString>

// Why the server is not running when it was asked to run: what the setup window's check and
// the status shown to the user build their reasons on.
struct ServerFailure
{
    enum Kind { None, NotInstalled, LaunchFailed, PortInUse, FifoTaken, Exited };

    Kind kind = None;
    // The child's exit code (Exited, PortInUse), its signal when it crashed, or -1 when it
    // never ran.
    int exitCode = -1;
    // The platform's words for a failed launch.
    QString detail {};
    // exitCode is the number of the signal that ended the child.
    bool crashed = false;
    // It stopped too often to be started again by itself.
    bool gaveUp = false;

    bool operator==(const ServerFailure &) const = default;
};

namespace serverfailure {

// The reason in plain words, empty for None: in the user's language for the panel, the settings,
// quivractl and the session bus (`translated`), in English for the log.
QString describe(const ServerFailure &failure, int port, const QString &fifo,
                 bool translated = false);

} // namespace serverfailure
