#include "server/serverchecks.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTcpServer>

#include <algorithm>
#include <sys/stat.h>
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

void removeOwnSocket(const QString &path)
{
    struct stat entry
    {
    };
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &entry) == 0 && S_ISSOCK(entry.st_mode)
        && entry.st_uid == ::getuid())
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
