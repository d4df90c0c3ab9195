#include "net/addresswatcher.h"

#include <QSocketNotifier>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace net {

// The kernel's routing socket, subscribed to link and address changes.
void AddressWatcher::start()
{
    m_fd = ::socket(AF_NETLINK, SOCK_RAW | SOCK_NONBLOCK | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (m_fd < 0)
        return;
    sockaddr_nl local {};
    local.nl_family = AF_NETLINK;
    local.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
    if (::bind(m_fd, reinterpret_cast<sockaddr *>(&local), sizeof local) != 0) {
        ::close(m_fd);
        m_fd = -1;
        return;
    }
    m_notifier = new QSocketNotifier(m_fd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        // What changed does not matter, only that something did: the addresses are read afresh.
        // An overflow (ENOBUFS) means the same and also ends the loop.
        char buffer[8192];
        while (::recv(m_fd, buffer, sizeof buffer, 0) > 0) { }
        m_settle.start();
    });
    m_watching = true;
}

void AddressWatcher::stop()
{
    delete m_notifier;
    m_notifier = nullptr;
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

} // namespace net
