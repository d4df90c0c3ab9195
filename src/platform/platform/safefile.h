#pragma once

#include <QByteArray>
#include <QString>

#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

// A file in the user's home or the app's support folder, where anything running as the user may
// have put something else: a FIFO would block an ordinary open for good, a link would send reads
// and writes elsewhere. Every such file is opened through here, with O_NONBLOCK, O_NOFOLLOW and
// O_CLOEXEC, and used only when fstat says it is a regular file of this user's; anything else is
// refused with a reason the user can act on. Special files are refused before they are opened.
class SafeFile
{
public:
    enum class Status { Open, Missing, Refused, Failed };
    // More than any file of the app's holds; a larger one is refused rather than read whole.
    static constexpr qint64 defaultLimit = 16 * 1024 * 1024;

    // `flags` as for open(2), such as O_RDWR | O_APPEND | O_CREAT (a created file gets mode
    // 0600); `name` is how messages call the file, such as "~/.ssh/authorized_keys".
    SafeFile(const QString &path, QString name, int flags = O_RDONLY);
    ~SafeFile();
    SafeFile(const SafeFile &) = delete;
    SafeFile &operator=(const SafeFile &) = delete;

    Status status() const { return m_status; }
    bool isOpen() const { return m_status == Status::Open; }
    // Why it is not open, or why the last read failed.
    QString error() const { return m_error; }
    const struct stat &info() const { return m_info; }
    int descriptor() const { return m_fd; }
    // This open made the file.
    bool created() const { return m_created; }

    // The whole content from its first byte, whatever the descriptor's offset; nothing when it is
    // larger than `limit` (the status becomes Refused) or cannot be read (Failed), with error().
    std::optional<QByteArray> readAll(qint64 limit = defaultLimit);

private:
    void open(const QString &path, int flags);
    void refuse(const QString &why);
    void fail(const QString &what);

    QString m_name;
    int m_fd = -1;
    Status m_status = Status::Failed;
    QString m_error;
    struct stat m_info
    {
    };
    bool m_created = false;
};

namespace safefile {

struct Contents
{
    SafeFile::Status status = SafeFile::Status::Failed;
    QByteArray bytes;
    QString error; // when the status is Refused or Failed
    struct stat info
    {
    };
};

// The whole file, read as SafeFile opens it; a missing file has no bytes and no error.
Contents read(const QString &path, const QString &name, qint64 limit = SafeFile::defaultLimit);

// Why the entry at `path` would be refused, looked at without opening it or following a link;
// none when it is missing or a regular file of this user's.
std::optional<QString> refusal(const QString &path, const QString &name);

} // namespace safefile
