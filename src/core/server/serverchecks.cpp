#include "server/serverchecks.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTcpServer>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace serverchecks {

bool portInUse(quint16 port)
{
    // etserver listens on every address, so a listener on any one of them keeps it out. The
    // IPv4 attempt covers machines without IPv6.
    QTcpServer probe;
    if (probe.listen(QHostAddress::Any, port))
        return false;
    if (probe.serverError() == QAbstractSocket::AddressInUseError)
        return true;
    return !probe.listen(QHostAddress::AnyIPv4, port)
        && probe.serverError() == QAbstractSocket::AddressInUseError;
}

bool ownedByAnotherUser(const QString &path, uint uid)
{
    // The entry itself: a link placed there is refused as much as what it points to.
    struct stat entry
    {
    };
    return ::lstat(QFile::encodeName(path).constData(), &entry) == 0 && entry.st_uid != uid;
}

uint currentUser()
{
    return ::getuid();
}

namespace {

// Connects without waiting: a listener whose queue is full answers EAGAIN, which is no refusal.
bool refusesConnections(const QByteArray &name)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    if (size_t(name.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, name.constData(), size_t(name.size()));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const bool refused =
        ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        && errno == ECONNREFUSED;
    ::close(fd);
    return refused;
}

} // namespace

void removeStaleSocket(const QString &path)
{
    struct stat entry
    {
    };
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &entry) == 0 && S_ISSOCK(entry.st_mode)
        && entry.st_uid == ::getuid() && refusesConnections(name))
        ::unlink(name.constData());
}

void pruneServerLogs(const QString &folder, int keep)
{
    QFileInfoList logs = QDir(folder).entryInfoList({ QStringLiteral("etserver-*.log") },
                                                    QDir::Files | QDir::Hidden);
    // Newest first; the names carry the date, which orders files written in the same second.
    std::sort(logs.begin(), logs.end(), [](const QFileInfo &a, const QFileInfo &b) {
        const QDateTime aTime = a.lastModified(), bTime = b.lastModified();
        return aTime != bTime ? aTime > bTime : a.fileName() > b.fileName();
    });
    for (qsizetype i = keep; i < logs.size(); ++i)
        QFile::remove(logs.at(i).absoluteFilePath());
}

} // namespace serverchecks
