#include "server/authorizedkeys.h"

#include "devices/authorizedkeysfile.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace authorizedkeys {
namespace {

Problem failure(const QString &what)
{
    return { false, what + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno)) };
}

Problem refusal(const QString &reason)
{
    return { true, reason };
}

QString octalMode(mode_t mode)
{
    return QString::number(mode & 07777, 8);
}

// ~/.ssh must be a directory only this user can change: anyone else could read or swap the keys.
// A link the user made to such a directory (dotfile managers do) is followed.
std::optional<Problem> prepareDirectory(const QByteArray &dir)
{
    struct stat info
    {
    };
    if (::lstat(dir.constData(), &info) != 0) {
        if (errno != ENOENT)
            return failure(QStringLiteral("Cannot inspect ~/.ssh"));
        if (::mkdir(dir.constData(), 0700) != 0 || ::chmod(dir.constData(), 0700) != 0)
            return failure(QStringLiteral("Cannot create ~/.ssh"));
        return std::nullopt;
    }
    if (S_ISLNK(info.st_mode)) {
        if (info.st_uid != ::getuid())
            return refusal(QStringLiteral("~/.ssh is a link owned by someone else; replace it "
                                          "with a directory of your own"));
        if (::stat(dir.constData(), &info) != 0)
            return failure(QStringLiteral("Cannot follow the link ~/.ssh"));
    }
    if (!S_ISDIR(info.st_mode))
        return refusal(QStringLiteral("~/.ssh is not a directory; move it aside"));
    if (info.st_uid != ::getuid())
        return refusal(QStringLiteral("~/.ssh is owned by someone else (uid %1); fix with "
                                      "chown $USER ~/.ssh")
                           .arg(info.st_uid));
    if (info.st_mode & (S_IWGRP | S_IWOTH))
        return refusal(QStringLiteral("~/.ssh is writable by others (mode %1); fix with "
                                      "chmod 700 ~/.ssh")
                           .arg(octalMode(info.st_mode)));
    return std::nullopt;
}

std::optional<Problem> checkOpenedFile(int fd)
{
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0)
        return failure(QStringLiteral("Cannot inspect authorized_keys"));
    if (const auto why = authorizedkeysfile::refusal(info))
        return refusal(*why);
    return std::nullopt;
}

bool alreadyPresent(int fd, const QString &publicKey)
{
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return false;
    return authorizedkeysfile::containsKey(file.readAll(), publicKey.toUtf8());
}

} // namespace

QByteArray entry(const QString &publicKey, const QDate &date)
{
    return QStringLiteral("\n# Quivra Terminal - Added on %1\n%2\n")
        .arg(date.toString(QStringLiteral("yyyy-MM-dd")), publicKey)
        .toUtf8();
}

std::optional<Problem> install(const QString &home, const QString &publicKey, const QDate &date)
{
    const QByteArray dir = QFile::encodeName(home + QStringLiteral("/.ssh"));
    const QByteArray path = dir + "/authorized_keys";
    if (auto error = prepareDirectory(dir))
        return error;

    struct stat before
    {
    };
    const bool existed = ::lstat(path.constData(), &before) == 0;
    // Read and appended through the one descriptor, so both see the same file.
    const int fd =
        ::open(path.constData(), O_RDWR | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0) {
        return errno == ELOOP ? refusal(authorizedkeysfile::linkRefusal())
                              : failure(QStringLiteral("Cannot open authorized_keys"));
    }
    auto error = checkOpenedFile(fd);
    if (!error && !existed && ::fchmod(fd, 0600) != 0)
        error = failure(QStringLiteral("Cannot set the mode of authorized_keys"));
    if (!error && !alreadyPresent(fd, publicKey)) {
        const QByteArray bytes = entry(publicKey, date);
        const ssize_t written = ::write(fd, bytes.constData(), size_t(bytes.size()));
        if (written != ssize_t(bytes.size()))
            error = written < 0
                ? failure(QStringLiteral("Cannot write authorized_keys"))
                : Problem { false,
                            QStringLiteral("Cannot write authorized_keys: the disk is full") };
        else if (::fsync(fd) != 0)
            error = failure(QStringLiteral("Cannot flush authorized_keys to disk"));
    }
    if (::close(fd) != 0 && !error)
        error = failure(QStringLiteral("Cannot close authorized_keys"));
    return error;
}

} // namespace authorizedkeys
