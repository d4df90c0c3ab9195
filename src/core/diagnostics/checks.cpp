#include "diagnostics/checks.h"

#include "net/hostlabel.h"
#include "platform/systeminfo.h"
#include "platform/wording.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

DiagnosticSystem DiagnosticSystem::real()
{
    return { QDir::homePath,     net::systemInterfaceAddresses,   platform::tailscaleInstalled,
             platform::userName, [] { return net::hostLabel(); }, platform::sshServerInstall };
}

namespace checks {

QList<DiagnosticCheck> fixedList()
{
    auto check = [](const char *id, const QString &name, const QString &description,
                    bool canAutoFix, bool isCritical) {
        return DiagnosticCheck {
            QString::fromUtf8(id), name, description, {}, canAutoFix, isCritical
        };
    };
    return {
        check("ssh_daemon", wording::sshCheckName(), wording::sshCheckDescription(), false, true),
        check("ssh_dir", QStringLiteral("SSH Directory"),
              QStringLiteral("~/.ssh directory exists with correct permissions"), true, true),
        check("auth_keys", QStringLiteral("Authorized Keys"),
              QStringLiteral("SSH authorized_keys file is configured"), true, true),
        check("etserver", QStringLiteral("Quivra Server"),
              QStringLiteral("Eternal Terminal server is running"), true, true),
        check("network", QStringLiteral("Network"), wording::accessibleOnNetwork(), false, true),
        check("tailscale", QStringLiteral("Tailscale"),
              QStringLiteral("Connect from anywhere with Tailscale"), false, false),
    };
}

namespace {

// The permission bits as compared: the mode without the file type, set-id and sticky kept.
std::optional<mode_t> permissions(const QString &path)
{
    struct stat info
    {
    };
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    return info.st_mode & 07777;
}

QString octal(mode_t mode)
{
    return QString::number(uint(mode), 8);
}

} // namespace

SshDirectoryState inspectSshDirectory(const QString &home)
{
    const QString path = home + QStringLiteral("/.ssh");
    const QFileInfo info(path);
    if (!info.isDir()) // follows a symbolic link
        return { SshDirectoryState::Missing };
    // A link of the user's own (dotfile managers make them) stands for the folder it points to,
    // as it does for sshd and for pairing.
    struct stat link
    {
    };
    const bool ownLink = ::lstat(QFile::encodeName(path).constData(), &link) == 0
        && S_ISLNK(link.st_mode) && link.st_uid == ::getuid();
    const auto mode = permissions(ownLink ? info.canonicalFilePath() : path);
    if (!mode)
        return { SshDirectoryState::Unreadable };
    if (*mode != 0700)
        return { SshDirectoryState::WrongMode, uint(*mode) };
    return {};
}

std::optional<uint> authorizedKeysWrongMode(const QString &home)
{
    const QString path = home + QStringLiteral("/.ssh/authorized_keys");
    struct stat info
    {
    };
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0 || !S_ISREG(info.st_mode)
        || (info.st_mode & 07777) == 0600)
        return std::nullopt;
    return uint(info.st_mode & 07777);
}

DiagnosticStatus sshDirectory(const QString &home)
{
    const SshDirectoryState state = inspectSshDirectory(home);
    switch (state.kind) {
    case SshDirectoryState::Missing:
        return DiagnosticStatus::fixable(QStringLiteral("~/.ssh directory doesn't exist"));
    case SshDirectoryState::Unreadable:
        return DiagnosticStatus::fixable(QStringLiteral("Cannot read ~/.ssh permissions"));
    case SshDirectoryState::WrongMode:
        return DiagnosticStatus::fixable(
            QStringLiteral("~/.ssh has incorrect permissions (%1 instead of 700)")
                .arg(octal(state.mode)));
    case SshDirectoryState::Fine:
        break;
    }
    return DiagnosticStatus::passed();
}

DiagnosticStatus authorizedKeys(const QString &home)
{
    const QString directory = home + QStringLiteral("/.ssh");
    const QString path = directory + QStringLiteral("/authorized_keys");
    if (!QFileInfo::exists(directory))
        return DiagnosticStatus::fixable(QStringLiteral("~/.ssh directory doesn't exist"));
    if (!QFileInfo::exists(path))
        return DiagnosticStatus::fixable(QStringLiteral("authorized_keys file doesn't exist"));
    const auto mode = permissions(path);
    if (!mode)
        return DiagnosticStatus::fixable(QStringLiteral("Cannot read authorized_keys permissions"));
    if (*mode != 0600)
        return DiagnosticStatus::fixable(
            QStringLiteral("authorized_keys has incorrect permissions (%1 instead of 600)")
                .arg(octal(*mode)));
    return DiagnosticStatus::passed();
}

DiagnosticStatus server(std::optional<bool> running)
{
    if (!running)
        return DiagnosticStatus::fixable(QStringLiteral("Server manager not available"));
    if (*running)
        return DiagnosticStatus::passed();
    return DiagnosticStatus::fixable(QStringLiteral("Quivra server is not running"));
}

DiagnosticStatus network(const QList<net::InterfaceAddress> &addresses)
{
    if (net::chooseLocalIP(addresses) == QLatin1String("127.0.0.1"))
        return DiagnosticStatus::failed(QStringLiteral("No network connection detected"));
    return DiagnosticStatus::passed();
}

DiagnosticStatus tailscale(const QList<net::InterfaceAddress> &addresses, bool installed)
{
    if (net::tailscaleAddress(addresses))
        return DiagnosticStatus::passed();
    if (installed)
        return DiagnosticStatus::failed(QStringLiteral("Tailscale is installed but not connected"));
    return DiagnosticStatus::failed(QStringLiteral("Install Tailscale to connect from anywhere"));
}

} // namespace checks
