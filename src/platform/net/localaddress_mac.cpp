#include "net/localaddress.h"

#include <QNetworkInterface>

namespace net {

QList<InterfaceAddress> systemInterfaceAddresses()
{
    QList<InterfaceAddress> result;
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &interface : interfaces) {
        const auto entries = interface.addressEntries();
        for (const QNetworkAddressEntry &entry : entries) {
            const QHostAddress ip = entry.ip();
            result.append({ interface.name(), ip.protocol() == QAbstractSocket::IPv4Protocol,
                            ip.toString() });
        }
    }
    return result;
}

} // namespace net
