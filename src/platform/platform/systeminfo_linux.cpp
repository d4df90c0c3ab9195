#include "platform/systeminfo.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace platform {

bool tailscaleInstalled()
{
    return !QStandardPaths::findExecutable(QStringLiteral("tailscale")).isEmpty()
        || QFileInfo::exists(QStringLiteral("/usr/sbin/tailscaled"));
}

SshServerInstall sshServerInstall()
{
    const auto anyExists = [](std::initializer_list<const char *> paths) {
        return std::any_of(paths.begin(), paths.end(),
                           [](const char *path) { return QFileInfo::exists(QLatin1String(path)); });
    };
    SshServerInstall install;
    install.installed = anyExists({ "/usr/sbin/sshd", "/usr/local/sbin/sshd", "/usr/bin/sshd" });
    // Debian and Ubuntu call the unit "ssh" (with "sshd" only as an alias of an enabled one);
    // Fedora, Arch and most others "sshd".
    if (anyExists({ "/lib/systemd/system/ssh.service", "/usr/lib/systemd/system/ssh.service" }))
        install.service = QStringLiteral("ssh");
    else if (anyExists(
                 { "/lib/systemd/system/sshd.service", "/usr/lib/systemd/system/sshd.service" }))
        install.service = QStringLiteral("sshd");
    return install;
}

} // namespace platform
