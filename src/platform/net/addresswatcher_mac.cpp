#include "net/addresswatcher.h"

#include <QNetworkInformation>

namespace net {

// Not run on a Mac yet: the system's reachability reports through Qt's network information,
// which tells of a network joined or left, though not of every address change.
void AddressWatcher::start()
{
    if (!QNetworkInformation::loadDefaultBackend())
        return;
    QNetworkInformation *information = QNetworkInformation::instance();
    connect(information, &QNetworkInformation::reachabilityChanged, &m_settle,
            qOverload<>(&QTimer::start));
    m_watching = true;
}

void AddressWatcher::stop() { }

} // namespace net
