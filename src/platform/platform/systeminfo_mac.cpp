#include "platform/systeminfo.h"

#include <QFileInfo>

namespace platform {

bool tailscaleInstalled()
{
    return QFileInfo::exists(QStringLiteral("/Applications/Tailscale.app"));
}

// Part of the system, switched on as Remote Login.
SshServerInstall sshServerInstall()
{
    return { true, QStringLiteral("com.openssh.sshd") };
}

} // namespace platform
