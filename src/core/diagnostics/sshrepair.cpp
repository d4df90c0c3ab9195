#include "diagnostics/sshrepair.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sshrepair {
namespace {

// The setup window shows these, in the user's language; `name` is a path.
QString said(const char *text, const QString &name)
{
    return QCoreApplication::translate("sshrepair", text).arg(name);
}

QString failure(const QString &what)
{
    return said(QT_TRANSLATE_NOOP("sshrepair", "%1: %2"), what)
        .arg(QString::fromLocal8Bit(std::strerror(errno)));
}

// Holds a descriptor for the length of one repair.
struct Descriptor
{
    int fd = -1;
    ~Descriptor()
    {
        if (fd >= 0)
            ::close(fd);
    }
};

// Why `name`, which open refused, cannot be repaired: said for what is there instead.
QString refusal(int dirFd, const char *path, const QString &name)
{
    const int error = errno;
    struct stat info
    {
    };
    if (::fstatat(dirFd, path, &info, AT_SYMLINK_NOFOLLOW) == 0) {
        if (S_ISLNK(info.st_mode))
            return said(
                QT_TRANSLATE_NOOP(
                    "sshrepair", "%1 is a link; set the permissions of what it points to yourself"),
                name);
        if (!S_ISDIR(info.st_mode) && !S_ISREG(info.st_mode))
            return said(
                QT_TRANSLATE_NOOP("sshrepair", "%1 is not a regular file or folder; move it aside"),
                name);
    }
    errno = error;
    return failure(said(QT_TRANSLATE_NOOP("sshrepair", "Cannot open %1"), name));
}

std::optional<QString> setMode(int fd, const QString &name, mode_t wanted)
{
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0)
        return failure(said(QT_TRANSLATE_NOOP("sshrepair", "Cannot inspect %1"), name));
    if (info.st_uid != ::getuid())
        return said(QT_TRANSLATE_NOOP("sshrepair",
                                      "%1 belongs to someone else (uid %2); it is left as it is"),
                    name)
            .arg(info.st_uid);
    if ((info.st_mode & 07777) != wanted && ::fchmod(fd, wanted) != 0)
        return failure(
            said(QT_TRANSLATE_NOOP("sshrepair", "Cannot change the permissions of %1"), name));
    return std::nullopt;
}

} // namespace

std::optional<QString> repair(const QString &home)
{
    const QByteArray dir = QFile::encodeName(home + QStringLiteral("/.ssh"));
    const QString dirName = QStringLiteral("~/.ssh");
    constexpr int dirFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    Descriptor folder { ::open(dir.constData(), dirFlags) };
    if (folder.fd < 0 && errno == ENOENT) {
        if (::mkdir(dir.constData(), 0700) != 0 && errno != EEXIST)
            return failure(said(QT_TRANSLATE_NOOP("sshrepair", "Cannot create %1"), dirName));
        folder.fd = ::open(dir.constData(), dirFlags);
    }
    if (folder.fd < 0)
        return refusal(AT_FDCWD, dir.constData(), dirName);
    if (auto error = setMode(folder.fd, dirName, 0700))
        return error;

    const QString keysName = QStringLiteral("~/.ssh/authorized_keys");
    // O_NONBLOCK: a FIFO put in its place must not hold the app.
    Descriptor keys { ::openat(folder.fd, "authorized_keys",
                               O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC) };
    if (keys.fd < 0) {
        if (errno == ENOENT)
            return std::nullopt; // made with the right mode when the first phone pairs
        return refusal(folder.fd, "authorized_keys", keysName);
    }
    struct stat info
    {
    };
    if (::fstat(keys.fd, &info) != 0)
        return failure(said(QT_TRANSLATE_NOOP("sshrepair", "Cannot inspect %1"), keysName));
    if (!S_ISREG(info.st_mode))
        return said(QT_TRANSLATE_NOOP("sshrepair", "%1 is not a regular file; move it aside"),
                    keysName);
    return setMode(keys.fd, keysName, 0600);
}

} // namespace sshrepair
