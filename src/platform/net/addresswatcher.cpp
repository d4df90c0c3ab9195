#include "net/addresswatcher.h"

namespace net {

AddressWatcher::AddressWatcher(QObject *parent)
    : QObject(parent)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleTime);
    connect(&m_settle, &QTimer::timeout, this, &AddressWatcher::changed);
    start();
}

AddressWatcher::~AddressWatcher()
{
    stop();
}

} // namespace net
