#include "diagnostics/sshrepair.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sshrepair {
namespace {

QString failure(const QString &what)
{
    return what + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
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
            return name
                + QStringLiteral(" is a link; set the permissions of what it points to yourself");
        if (!S_ISDIR(info.st_mode) && !S_ISREG(info.st_mode))
            return name + QStringLiteral(" is not a regular file or folder; move it aside");
    }
    errno = error;
    return failure(QStringLiteral("Cannot open ") + name);
}

std::optional<QString> setMode(int fd, const QString &name, mode_t wanted)
{
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0)
        return failure(QStringLiteral("Cannot inspect ") + name);
    if (info.st_uid != ::getuid())
        return name
            + QStringLiteral(" belongs to someone else (uid %1); it is left as it is")
                  .arg(info.st_uid);
    if ((info.st_mode & 07777) != wanted && ::fchmod(fd, wanted) != 0)
        return failure(QStringLiteral("Cannot change the permissions of ") + name);
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
            return failure(QStringLiteral("Cannot create ~/.ssh"));
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
        return failure(QStringLiteral("Cannot inspect ") + keysName);
    if (!S_ISREG(info.st_mode))
        return keysName + QStringLiteral(" is not a regular file; move it aside");
    return setMode(keys.fd, keysName, 0600);
}

} // namespace sshrepair
