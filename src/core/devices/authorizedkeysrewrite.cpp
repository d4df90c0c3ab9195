#include "devices/authorizedkeysrewrite.h"

#include "devices/authorizedkeysfile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace authorizedkeysrewrite {
namespace {

// Another writer may append between reading and replacing; after this many fresh starts the
// file is left as it is.
constexpr int attempts = 5;

QString systemError(const QString &what)
{
    return what + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

class Descriptor
{
public:
    explicit Descriptor(int fd)
        : m_fd(fd)
    { }
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int get() const { return m_fd; }

private:
    int m_fd;
};

// The file as it is now, opened without following a link; O_NONBLOCK so that a FIFO put in its
// place cannot hang the app before fstat refuses it.
struct Snapshot
{
    struct stat info
    {
    };
    QByteArray content;
    std::optional<RewriteResult> problem;
};

Snapshot snapshot(const QByteArray &path)
{
    Snapshot result;
    const Descriptor fd(::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (fd.get() < 0) {
        if (errno == ENOENT)
            result.problem = { RewriteResult::Kind::NotPresent, 0, {} };
        else if (errno == ELOOP)
            result.problem = { RewriteResult::Kind::Refused, 0, authorizedkeysfile::linkRefusal() };
        else
            result.problem = { RewriteResult::Kind::Failed, 0,
                               systemError(QStringLiteral("Cannot open authorized_keys")) };
        return result;
    }
    if (::fstat(fd.get(), &result.info) != 0)
        result.problem = { RewriteResult::Kind::Failed, 0,
                           systemError(QStringLiteral("Cannot inspect authorized_keys")) };
    else if (const auto why = authorizedkeysfile::refusal(result.info))
        result.problem = { RewriteResult::Kind::Refused, 0, *why };
    if (result.problem)
        return result;
    QFile file;
    if (file.open(fd.get(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        result.content = file.readAll();
    if (!file.isOpen() || file.error() != QFileDevice::NoError)
        result.problem = { RewriteResult::Kind::Failed, 0,
                           QStringLiteral("Cannot read authorized_keys: ") + file.errorString() };
    return result;
}

bool sameFile(const Snapshot &a, const Snapshot &b)
{
    return !a.problem && !b.problem && a.info.st_dev == b.info.st_dev
        && a.info.st_ino == b.info.st_ino && a.content == b.content;
}

// A rewrite killed before its rename leaves its temporary file; sshd never reads it.
void removeStaleTemporaries(const QFileInfo &target)
{
    const QDateTime stale = QDateTime::currentDateTimeUtc().addSecs(-3600);
    const QDir dir = target.absoluteDir();
    const QString pattern = QStringLiteral(".") + target.fileName() + QStringLiteral(".quivra-*");
    const QFileInfoList found = dir.entryInfoList({ pattern }, QDir::Files | QDir::Hidden);
    for (const QFileInfo &leftover : found) {
        if (leftover.lastModified().toUTC() < stale)
            QFile::remove(leftover.filePath());
    }
}

// The new content, durable under a temporary name in the same directory (`temporary`, empty when
// none was made) with the original's mode, or an error text.
std::optional<QString> writeTemporary(const QFileInfo &target, const QByteArray &content,
                                      mode_t mode, QByteArray *temporary)
{
    *temporary = QFile::encodeName(target.absolutePath() + QStringLiteral("/.") + target.fileName()
                                   + QStringLiteral(".quivra-XXXXXX"));
    const Descriptor fd(::mkostemp(temporary->data(), O_CLOEXEC));
    if (fd.get() < 0) {
        temporary->clear();
        return systemError(QStringLiteral("Cannot create a new authorized_keys beside the old"));
    }
    QFile file;
    if (!file.open(fd.get(), QIODevice::WriteOnly, QFileDevice::DontCloseHandle)
        || file.write(content) != content.size() || !file.flush())
        return QStringLiteral("Cannot write the new authorized_keys: ") + file.errorString();
    if (::fchmod(fd.get(), mode & 07777) != 0)
        return systemError(QStringLiteral("Cannot set the mode of the new authorized_keys"));
    if (::fsync(fd.get()) != 0)
        return systemError(QStringLiteral("Cannot flush the new authorized_keys to disk"));
    return std::nullopt;
}

} // namespace

RewriteResult removeKey(const QString &path, const QString &fingerprint,
                        const std::function<void()> &beforeReplace)
{
    const QFileInfo target(path);
    const QByteArray encoded = QFile::encodeName(path);
    removeStaleTemporaries(target);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const Snapshot before = snapshot(encoded);
        if (before.problem)
            return *before.problem;
        int removed = 0;
        const QByteArray after =
            authorizedkeysfile::withoutKey(before.content, fingerprint, &removed);
        if (removed == 0)
            return { RewriteResult::Kind::NotPresent, 0, {} };

        QByteArray temporary;
        if (const auto error = writeTemporary(target, after, before.info.st_mode, &temporary)) {
            if (!temporary.isEmpty())
                ::unlink(temporary.constData());
            return { RewriteResult::Kind::Failed, 0, *error };
        }
        if (beforeReplace)
            beforeReplace();
        // Whatever was appended while the file was read and the new one written is caught here,
        // and the rewrite starts over from a fresh read. Appenders (pairing, ssh-copy-id) use
        // O_APPEND and take no lock, so nothing shuts them out entirely: a line written between
        // this check and the rename, a few system calls apart, or by a writer that opened the old
        // file before the rename and writes after it, would be lost. ssh-copy-id opens and writes
        // at once, and the app's own pairing runs on the same thread as its revoke, so neither
        // meets that window in practice.
        if (!sameFile(before, snapshot(encoded))) {
            ::unlink(temporary.constData());
            continue;
        }
        if (::rename(temporary.constData(), encoded.constData()) != 0) {
            const QString error = systemError(QStringLiteral("Cannot replace authorized_keys"));
            ::unlink(temporary.constData());
            return { RewriteResult::Kind::Failed, 0, error };
        }
        // The rename is what sshd sees; a failed directory sync only risks it after a power cut.
        const Descriptor dir(::open(QFile::encodeName(target.absolutePath()).constData(),
                                    O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (dir.get() >= 0)
            ::fsync(dir.get());
        return { RewriteResult::Kind::Removed, removed, {} };
    }
    return { RewriteResult::Kind::Failed, 0,
             QStringLiteral("authorized_keys kept changing while the key was being removed; "
                            "try again") };
}

} // namespace authorizedkeysrewrite
