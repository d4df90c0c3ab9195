#pragma once

#include <QString>

namespace platform {

// The login name of the user this process runs as.
QString userName();

// Whether Tailscale is installed, connected or not.
bool tailscaleInstalled();

// The SSH server as this system has it: whether its daemon is installed, and the service that
// starts it (empty where the system is not known to have one by that name).
struct SshServerInstall
{
    bool installed = true;
    QString service;
};
SshServerInstall sshServerInstall();

} // namespace platform
