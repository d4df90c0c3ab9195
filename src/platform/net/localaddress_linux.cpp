#include "net/localaddress.h"

#include <QHostAddress>
#include <QtEndian>

#include <cerrno>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

namespace net {
namespace {

// One address message of the kernel's dump: its interface's name (the label, without the
// ":alias" part) and its own address.
std::optional<InterfaceAddress> parse(const nlmsghdr *message)
{
    const auto *header = static_cast<const ifaddrmsg *>(NLMSG_DATA(message));
    int length = int(IFA_PAYLOAD(message));
    QString name;
    std::optional<quint32> local;
    std::optional<quint32> address;
    for (auto *attribute = IFA_RTA(header); RTA_OK(attribute, length);
         attribute = RTA_NEXT(attribute, length)) {
        const void *data = RTA_DATA(attribute);
        if (attribute->rta_type == IFA_LABEL)
            name = QString::fromLocal8Bit(static_cast<const char *>(data)).section(u':', 0, 0);
        else if (RTA_PAYLOAD(attribute) != sizeof(quint32))
            continue;
        else if (attribute->rta_type == IFA_LOCAL)
            local = *static_cast<const quint32 *>(data);
        else if (attribute->rta_type == IFA_ADDRESS)
            address = *static_cast<const quint32 *>(data);
    }
    // On a point-to-point link IFA_ADDRESS is the far end's; IFA_LOCAL is always this end's.
    const std::optional<quint32> own = local ? local : address;
    if (!own)
        return std::nullopt;
    if (name.isEmpty()) {
        char buffer[IF_NAMESIZE] = {};
        if (::if_indextoname(header->ifa_index, buffer))
            name = QString::fromLocal8Bit(buffer);
    }
    return InterfaceAddress { name, true, QHostAddress(qFromBigEndian(*own)).toString() };
}

} // namespace

// One dump of the IPv4 addresses alone, in the order of their interfaces: phones are only ever
// given an IPv4 address. QNetworkInterface dumps every link with its statistics before the
// addresses of both families, which made this the costliest part of a status report.
QList<InterfaceAddress> systemInterfaceAddresses()
{
    const int fd = ::socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (fd < 0)
        return {};
    struct
    {
        nlmsghdr header;
        ifaddrmsg body;
    } request {};
    request.header.nlmsg_len = sizeof request;
    request.header.nlmsg_type = RTM_GETADDR;
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    request.header.nlmsg_seq = 1;
    request.body.ifa_family = AF_INET;
    sockaddr_nl kernel {};
    kernel.nl_family = AF_NETLINK;
    QList<InterfaceAddress> result;
    if (::sendto(fd, &request, sizeof request, 0, reinterpret_cast<sockaddr *>(&kernel),
                 sizeof kernel)
        < 0) {
        ::close(fd);
        return {};
    }
    alignas(nlmsghdr) char buffer[16384];
    for (bool done = false; !done;) {
        ssize_t length = ::recv(fd, buffer, sizeof buffer, 0);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            break;
        for (auto *message = reinterpret_cast<nlmsghdr *>(buffer); NLMSG_OK(message, length);
             message = NLMSG_NEXT(message, length)) {
            if (message->nlmsg_type == NLMSG_DONE || message->nlmsg_type == NLMSG_ERROR) {
                done = true;
                break;
            }
            if (message->nlmsg_type == RTM_NEWADDR) {
                if (const std::optional<InterfaceAddress> entry = parse(message))
                    result.append(*entry);
            }
        }
    }
    ::close(fd);
    return result;
}

} // namespace net
