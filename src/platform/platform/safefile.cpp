#include "platform/safefile.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString kindOf(mode_t mode)
{
    if (S_ISFIFO(mode))
        return QStringLiteral("a FIFO");
    if (S_ISSOCK(mode))
        return QStringLiteral("a socket");
    if (S_ISDIR(mode))
        return QStringLiteral("a directory");
    if (S_ISCHR(mode) || S_ISBLK(mode))
        return QStringLiteral("a device");
    return QStringLiteral("a special file");
}

QString linkRefusal(const QString &name)
{
    return name + QStringLiteral(" is a symbolic link; replace it with the file it points to");
}

// What is wrong with an entry that `info` describes, or none for a regular file of this user's.
std::optional<QString> refusalOf(const struct stat &info, const QString &name)
{
    if (S_ISLNK(info.st_mode))
        return linkRefusal(name);
    if (!S_ISREG(info.st_mode))
        return name
            + QStringLiteral(" is %1, not a regular file; move it aside").arg(kindOf(info.st_mode));
    if (info.st_uid != ::getuid())
        return name
            + QStringLiteral(" is owned by someone else (uid %1); fix with chown $USER %2")
                  .arg(info.st_uid)
                  .arg(name);
    return std::nullopt;
}

} // namespace

SafeFile::SafeFile(const QString &path, QString name, int flags)
    : m_name(std::move(name))
{
    open(path, flags);
}

void SafeFile::open(const QString &path, int flags)
{
    const QByteArray encoded = QFile::encodeName(path);
    struct stat entry
    {
    };
    if (::lstat(encoded.constData(), &entry) != 0) {
        if (errno != ENOENT)
            return fail(QStringLiteral("Cannot inspect ") + m_name);
        if (!(flags & O_CREAT)) {
            m_status = Status::Missing;
            return;
        }
        m_created = true;
    } else if (const auto why = refusalOf(entry, m_name)) {
        return refuse(*why);
    }

    m_fd = ::open(encoded.constData(), flags | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (m_fd < 0) {
        if (errno == ENOENT) {
            m_status = Status::Missing;
            return;
        }
        // Swapped for a link since the look above.
        return errno == ELOOP ? refuse(linkRefusal(m_name))
                              : fail(QStringLiteral("Cannot open ") + m_name);
    }
    if (::fstat(m_fd, &m_info) != 0)
        return fail(QStringLiteral("Cannot inspect ") + m_name);
    if (const auto why = refusalOf(m_info, m_name))
        return refuse(*why);
    m_status = Status::Open;
}

SafeFile::~SafeFile()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

void SafeFile::refuse(const QString &why)
{
    m_status = Status::Refused;
    m_error = why;
    if (m_fd >= 0)
        ::close(std::exchange(m_fd, -1));
}

void SafeFile::fail(const QString &what)
{
    m_status = Status::Failed;
    m_error = what + QStringLiteral(": ") + systemError();
    if (m_fd >= 0)
        ::close(std::exchange(m_fd, -1));
}

std::optional<QByteArray> SafeFile::readAll(qint64 limit)
{
    if (m_fd < 0)
        return std::nullopt;
    QByteArray content;
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::pread(m_fd, buffer, sizeof buffer, off_t(content.size()));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            m_status = Status::Failed;
            m_error =
                QStringLiteral("Cannot read ") + m_name + QStringLiteral(": ") + systemError();
            return std::nullopt;
        }
        if (got == 0)
            return content;
        if (content.size() + got > limit) {
            m_status = Status::Refused;
            m_error = m_name
                + QStringLiteral(" is larger than %1 KiB, more than the app reads; move it aside")
                      .arg(limit / 1024);
            return std::nullopt;
        }
        content.append(buffer, got);
    }
}

namespace safefile {

Contents read(const QString &path, const QString &name, qint64 limit)
{
    SafeFile file(path, name);
    Contents contents { file.status(), {}, file.error(), file.info() };
    if (!file.isOpen())
        return contents;
    if (auto bytes = file.readAll(limit)) {
        contents.bytes = std::move(*bytes);
    } else {
        contents.status = file.status();
        contents.error = file.error();
    }
    return contents;
}

std::optional<QString> refusal(const QString &path, const QString &name)
{
    struct stat entry
    {
    };
    if (::lstat(QFile::encodeName(path).constData(), &entry) != 0)
        return std::nullopt;
    return refusalOf(entry, name);
}

} // namespace safefile
