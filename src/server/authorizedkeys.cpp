#include "server/authorizedkeys.h"

#include <QByteArrayList>
#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace authorizedkeys {
namespace {

QString systemError(const QString &what)
{
    return what + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

// ~/.ssh must be a real directory of ours: a link could send the key anywhere.
std::optional<QString> prepareDirectory(const QByteArray &dir)
{
    struct stat info
    {
    };
    if (::lstat(dir.constData(), &info) != 0) {
        if (errno != ENOENT)
            return systemError(QStringLiteral("Cannot inspect ~/.ssh"));
        if (::mkdir(dir.constData(), 0700) != 0 || ::chmod(dir.constData(), 0700) != 0)
            return systemError(QStringLiteral("Cannot create ~/.ssh"));
        return std::nullopt;
    }
    if (S_ISLNK(info.st_mode))
        return QStringLiteral("~/.ssh is a symbolic link; refusing to follow it");
    if (!S_ISDIR(info.st_mode))
        return QStringLiteral("~/.ssh is not a directory");
    if (info.st_uid != ::getuid())
        return QStringLiteral("~/.ssh is not owned by you");
    return std::nullopt;
}

std::optional<QString> checkOpenedFile(int fd)
{
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0)
        return systemError(QStringLiteral("Cannot inspect authorized_keys"));
    if (!S_ISREG(info.st_mode))
        return QStringLiteral("authorized_keys is not a regular file");
    if (info.st_uid != ::getuid())
        return QStringLiteral("authorized_keys is not owned by you");
    if (info.st_nlink != 1)
        return QStringLiteral("authorized_keys has other hard links");
    if (info.st_mode & (S_IWGRP | S_IWOTH))
        return QStringLiteral("authorized_keys is writable by others");
    return std::nullopt;
}

// True when a line of the file carries the same key type and base64, options or comment aside.
bool alreadyPresent(const QByteArray &path, const QString &publicKey)
{
    const QByteArrayList key = publicKey.toUtf8().simplified().split(' ');
    QFile file(QString::fromLocal8Bit(path));
    if (key.size() < 2 || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArrayList lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QByteArrayList fields = line.simplified().split(' ');
        for (qsizetype i = 0; i + 1 < fields.size(); ++i) {
            if (fields.at(i) == key.at(0) && fields.at(i + 1) == key.at(1))
                return true;
        }
    }
    return false;
}

} // namespace

QByteArray entry(const QString &publicKey, const QDate &date)
{
    return QStringLiteral("\n# Quivra Terminal - Added on %1\n%2\n")
        .arg(date.toString(QStringLiteral("yyyy-MM-dd")), publicKey)
        .toUtf8();
}

std::optional<QString> install(const QString &home, const QString &publicKey, const QDate &date)
{
    const QByteArray dir = QFile::encodeName(home + QStringLiteral("/.ssh"));
    const QByteArray path = dir + "/authorized_keys";
    if (auto error = prepareDirectory(dir))
        return error;

    struct stat before
    {
    };
    const bool existed = ::lstat(path.constData(), &before) == 0;
    const int fd =
        ::open(path.constData(), O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0) {
        return errno == ELOOP
            ? QStringLiteral("authorized_keys is a symbolic link; refusing to follow it")
            : systemError(QStringLiteral("Cannot open authorized_keys"));
    }
    auto error = checkOpenedFile(fd);
    if (!error && !existed && ::fchmod(fd, 0600) != 0)
        error = systemError(QStringLiteral("Cannot set the mode of authorized_keys"));
    if (!error && !alreadyPresent(path, publicKey)) {
        const QByteArray bytes = entry(publicKey, date);
        const ssize_t written = ::write(fd, bytes.constData(), size_t(bytes.size()));
        if (written != ssize_t(bytes.size()))
            error = written < 0 ? systemError(QStringLiteral("Cannot write authorized_keys"))
                                : QStringLiteral("Cannot write authorized_keys: the disk is full");
        else if (::fsync(fd) != 0)
            error = systemError(QStringLiteral("Cannot flush authorized_keys to disk"));
    }
    if (::close(fd) != 0 && !error)
        error = systemError(QStringLiteral("Cannot close authorized_keys"));
    return error;
}

} // namespace authorizedkeys
