#include "net/localaddress.h"

namespace net {
namespace {

const QString loopback = QStringLiteral("127.0.0.1");

bool isTailscale(const InterfaceAddress &entry)
{
    return entry.isIPv4 && isTailscaleInterface(entry.interfaceName)
        && entry.address.startsWith(QLatin1String("100."));
}

} // namespace

bool isTailscaleInterface(const QString &interfaceName)
{
    return interfaceName.startsWith(QLatin1String("utun"))
        || interfaceName.startsWith(QLatin1String("tailscale"));
}

bool isLanInterface(const QString &interfaceName)
{
    return interfaceName.startsWith(QLatin1String("en"))
        || interfaceName.startsWith(QLatin1String("eth"))
        || interfaceName.startsWith(QLatin1String("wl"));
}

QString chooseLocalIP(const QList<InterfaceAddress> &addresses)
{
    QString result = loopback;
    for (const InterfaceAddress &entry : addresses) {
        if (!entry.isIPv4 || entry.address == loopback)
            continue;
        if (isTailscale(entry))
            return entry.address;
        if (isLanInterface(entry.interfaceName))
            result = entry.address;
    }
    return result;
}

std::optional<QString> tailscaleAddress(const QList<InterfaceAddress> &addresses)
{
    for (const InterfaceAddress &entry : addresses) {
        if (isTailscale(entry))
            return entry.address;
    }
    return std::nullopt;
}

QString getLocalIP()
{
    return chooseLocalIP(systemInterfaceAddresses());
}

} // namespace net
