#pragma once

#include <QString>

// Why the server is not running when it was asked to run: what the setup window's check and
// the status shown to the user build their reasons on.
struct ServerFailure
{
    enum Kind { None, NotInstalled, LaunchFailed, PortInUse, Exited };

    Kind kind = None;
    // The child's exit code (Exited, PortInUse) or -1 when it never ran.
    int exitCode = -1;
    // The platform's words for a failed launch.
    QString detail {};

    bool operator==(const ServerFailure &) const = default;
};
