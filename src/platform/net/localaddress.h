#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace net {

// One address of one interface, in the order the system lists them.
struct InterfaceAddress
{
    QString interfaceName;
    bool isIPv4 = false;
    QString address; // numeric text
};

// The machine's addresses; on Linux only the IPv4 ones, the only ones phones are given.
QList<InterfaceAddress> systemInterfaceAddresses();

// Tailscale's own interface: "utun" on macOS, "tailscale" on Linux, with a 100.x address.
bool isTailscaleInterface(const QString &interfaceName);
// Wi-Fi or Ethernet: "en" (both systems' predictable names), and "eth" and "wl" on Linux.
bool isLanInterface(const QString &interfaceName);

// The IPv4 address phones should use: the first Tailscale address, else the last LAN address,
// else "127.0.0.1".
QString chooseLocalIP(const QList<InterfaceAddress> &addresses);
std::optional<QString> tailscaleAddress(const QList<InterfaceAddress> &addresses);

QString getLocalIP();

} // namespace net
