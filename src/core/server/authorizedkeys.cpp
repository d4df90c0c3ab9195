#include "server/authorizedkeys.h"

#include "devices/authorizedkeysfile.h"
#include "platform/safefile.h"

#include <QCalendar>
#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace authorizedkeys {
namespace {

using authorizedkeysfile::displayName;

QString failure(const QString &what)
{
    return what + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

QString octalMode(mode_t mode)
{
    return QString::number(mode & 07777, 8);
}

// ~/.ssh must be a directory only this user can change: anyone else could read or swap the keys.
// A link the user made to such a directory (dotfile managers do) is followed.
std::optional<QString> prepareDirectory(const QByteArray &dir)
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
            return QStringLiteral("~/.ssh is a link owned by someone else; replace it with a "
                                  "directory of your own");
        if (::stat(dir.constData(), &info) != 0)
            return failure(QStringLiteral("Cannot follow the link ~/.ssh"));
    }
    if (!S_ISDIR(info.st_mode))
        return QStringLiteral("~/.ssh is not a directory; move it aside");
    if (info.st_uid != ::getuid())
        return QStringLiteral(
                   "~/.ssh is owned by someone else (uid %1); fix with chown $USER ~/.ssh")
            .arg(info.st_uid);
    if (info.st_mode & (S_IWGRP | S_IWOTH))
        return QStringLiteral("~/.ssh is writable by others (mode %1); fix with chmod 700 ~/.ssh")
            .arg(octalMode(info.st_mode));
    return std::nullopt;
}

// Appends `bytes` whole or not at all. The space is reserved first where the filesystem can, so
// that a full disk fails before anything is written; elsewhere, what a failed write or flush
// left at the end is cut off again.
std::optional<QString> appendWhole(int fd, const QByteArray &bytes)
{
#ifdef FALLOC_FL_KEEP_SIZE
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0)
        return failure(QStringLiteral("Cannot inspect ") + displayName);
    if (::fallocate(fd, FALLOC_FL_KEEP_SIZE, info.st_size, off_t(bytes.size())) != 0
        && errno != EOPNOTSUPP && errno != ENOSYS)
        return failure(QStringLiteral("Cannot write ") + displayName);
#endif
    const ssize_t written = ::write(fd, bytes.constData(), size_t(bytes.size()));
    std::optional<QString> error;
    if (written < 0)
        error = failure(QStringLiteral("Cannot write ") + displayName);
    else if (written != ssize_t(bytes.size()))
        error = QStringLiteral("Cannot write %1: the disk is full").arg(displayName);
    else if (::fsync(fd) != 0)
        error = failure(QStringLiteral("Cannot flush %1 to disk").arg(displayName));
    if (error && written > 0) {
        // O_APPEND wrote at the end as it was then, and the offset stands after those bytes.
        const off_t end = ::lseek(fd, 0, SEEK_CUR);
        if (end >= written && ::ftruncate(fd, end - written) != 0)
            *error += QStringLiteral("; the start of the entry may be left at its end");
    }
    return error;
}

} // namespace

QByteArray entry(const QString &publicKey, const QDate &date)
{
    // Gregorian with ASCII digits whatever the locale: the devices list reads the date back.
    const QString day =
        date.toString(QStringLiteral("yyyy-MM-dd"), QCalendar(QCalendar::System::Gregorian));
    return QStringLiteral("\n# Quivra Terminal - Added on %1\n%2\n").arg(day, publicKey).toUtf8();
}

std::optional<QString> install(const QString &home, const QString &publicKey, const QDate &date)
{
    const QString dir = home + QStringLiteral("/.ssh");
    if (auto error = prepareDirectory(QFile::encodeName(dir)))
        return error;
    // Read and appended through the one descriptor, so both see the same file.
    SafeFile file(dir + QStringLiteral("/authorized_keys"), displayName,
                  O_RDWR | O_APPEND | O_CREAT);
    if (!file.isOpen())
        return file.error();
    if (auto why = authorizedkeysfile::refusal(file.info()))
        return why;
    if (file.created() && ::fchmod(file.descriptor(), 0600) != 0)
        return failure(QStringLiteral("Cannot set the mode of ") + displayName);
    const std::optional<QByteArray> content = file.readAll();
    if (!content)
        return file.error();
    if (authorizedkeysfile::containsKey(*content, publicKey.toUtf8()))
        return std::nullopt;
    return appendWhole(file.descriptor(), entry(publicKey, date));
}

} // namespace authorizedkeys
