#pragma once

#include "diagnostics/diagnosticcheck.h"
#include "net/localaddress.h"
#include "platform/systeminfo.h"

#include <QList>

#include <functional>
#include <optional>

// Whether the server runs; none when nothing supervises it any more.
using ServerRunning = std::function<std::optional<bool>()>;

// What the checks read from the machine; tests replace pieces.
struct DiagnosticSystem
{
    // The app's one source of the home directory: the keys it installs and lists live under it
    // too, so that the report checks the same ~/.ssh that pairing writes.
    std::function<QString()> homeDirectory;
    std::function<QList<net::InterfaceAddress>()> interfaces;
    std::function<bool()> tailscaleInstalled;
    std::function<QString()> userName;
    std::function<QString()> hostLabel;
    // Asked only when the SSH server does not answer, to say what to do about it.
    std::function<platform::SshServerInstall()> sshServer = platform::sshServerInstall;

    static DiagnosticSystem real();
};

namespace checks {

// The six checks in their fixed order, all pending.
QList<DiagnosticCheck> fixedList();

// What ~/.ssh looks like. The status report and the setup window run the same inspection and
// word its outcome each in their own way.
struct SshDirectoryState
{
    enum Kind { Fine, Missing, Unreadable, WrongMode };
    Kind kind = Fine;
    uint mode = 0;
};
SshDirectoryState inspectSshDirectory(const QString &home);
// The mode of ~/.ssh/authorized_keys when it is a file whose mode is not 0600.
std::optional<uint> authorizedKeysWrongMode(const QString &home);

DiagnosticStatus sshDirectory(const QString &home);
DiagnosticStatus authorizedKeys(const QString &home);
DiagnosticStatus server(std::optional<bool> running);
DiagnosticStatus network(const QList<net::InterfaceAddress> &addresses);
DiagnosticStatus tailscale(const QList<net::InterfaceAddress> &addresses, bool installed);

} // namespace checks
