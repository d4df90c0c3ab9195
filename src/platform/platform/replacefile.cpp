#include "platform/replacefile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace replacefile {
namespace {

QString systemError(const QString &what)
{
    return what + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

bool writeAll(int fd, const QByteArray &content)
{
    for (qsizetype done = 0; done < content.size();) {
        const ssize_t written =
            ::write(fd, content.constData() + done, size_t(content.size() - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            if (written == 0)
                errno = ENOSPC;
            return false;
        }
        done += written;
    }
    return true;
}

} // namespace

std::optional<QString> writeTemporary(const QString &path, const QString &name,
                                      const QByteArray &content, mode_t mode, QByteArray *temporary)
{
    const QFileInfo target(path);
    *temporary = QFile::encodeName(target.absolutePath() + QStringLiteral("/.") + target.fileName()
                                   + QStringLiteral(".quivra-XXXXXX"));
    const int fd = ::mkostemp(temporary->data(), O_CLOEXEC);
    if (fd < 0) {
        const QString error = systemError(QStringLiteral("Cannot create a new ") + name);
        temporary->clear();
        return error;
    }
    std::optional<QString> error;
    if (!writeAll(fd, content))
        error = systemError(QStringLiteral("Cannot write the new ") + name);
    else if (::fchmod(fd, mode & 07777) != 0)
        error = systemError(QStringLiteral("Cannot set the mode of the new ") + name);
    else if (::fsync(fd) != 0)
        error = systemError(QStringLiteral("Cannot flush the new ") + name + " to disk");
    if (::close(fd) != 0 && !error)
        error = systemError(QStringLiteral("Cannot write the new ") + name);
    if (error) {
        ::unlink(temporary->constData());
        temporary->clear();
    }
    return error;
}

std::optional<QString> commit(const QByteArray &temporary, const QString &path, const QString &name)
{
    if (::rename(temporary.constData(), QFile::encodeName(path).constData()) != 0) {
        const QString error = systemError(QStringLiteral("Cannot replace ") + name);
        ::unlink(temporary.constData());
        return error;
    }
    // The rename is what readers see; a failed folder sync only risks it after a power cut.
    const int dir = ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(),
                           O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return std::nullopt;
}

std::optional<QString> replace(const QString &path, const QString &name, const QByteArray &content,
                               mode_t mode)
{
    QByteArray temporary;
    if (auto error = writeTemporary(path, name, content, mode, &temporary))
        return error;
    return commit(temporary, path, name);
}

} // namespace replacefile
