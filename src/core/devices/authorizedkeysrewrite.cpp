#include "devices/authorizedkeysrewrite.h"

#include "devices/authorizedkeysfile.h"
#include "platform/replacefile.h"
#include "platform/safefile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace authorizedkeysrewrite {
namespace {

using authorizedkeysfile::displayName;

// Another writer may append between reading and replacing; after this many fresh starts the
// file is left as it is.
constexpr int attempts = 5;

// The file as it is now, read as SafeFile reads it: a FIFO put in its place cannot hang the app.
struct Snapshot
{
    safefile::Contents read;
    std::optional<RewriteResult> problem;
};

Snapshot snapshot(const QString &path)
{
    Snapshot result { safefile::read(path, displayName), std::nullopt };
    switch (result.read.status) {
    case SafeFile::Status::Missing:
        result.problem = { RewriteResult::Kind::NotPresent, 0, {} };
        break;
    case SafeFile::Status::Refused:
        result.problem = { RewriteResult::Kind::Refused, 0, result.read.error };
        break;
    case SafeFile::Status::Failed:
        result.problem = { RewriteResult::Kind::Failed, 0, result.read.error };
        break;
    case SafeFile::Status::Open:
        if (const auto why = authorizedkeysfile::refusal(result.read.info))
            result.problem = { RewriteResult::Kind::Refused, 0, *why };
        break;
    }
    return result;
}

bool sameFile(const Snapshot &a, const Snapshot &b)
{
    return !a.problem && !b.problem && a.read.info.st_dev == b.read.info.st_dev
        && a.read.info.st_ino == b.read.info.st_ino && a.read.bytes == b.read.bytes;
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

} // namespace

RewriteResult removeKey(const QString &path, const QString &fingerprint,
                        const std::function<void()> &beforeReplace)
{
    removeStaleTemporaries(QFileInfo(path));
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const Snapshot before = snapshot(path);
        if (before.problem)
            return *before.problem;
        int removed = 0;
        const QByteArray after =
            authorizedkeysfile::withoutKey(before.read.bytes, fingerprint, &removed);
        if (removed == 0)
            return { RewriteResult::Kind::NotPresent, 0, {} };

        QByteArray temporary;
        if (const auto error = replacefile::writeTemporary(path, displayName, after,
                                                           before.read.info.st_mode, &temporary))
            return { RewriteResult::Kind::Failed, 0, *error };
        if (beforeReplace)
            beforeReplace();
        // Whatever was appended while the file was read and the new one written is caught here,
        // and the rewrite starts over from a fresh read. Appenders (pairing, ssh-copy-id) use
        // O_APPEND and take no lock, so nothing shuts them out entirely: a line written between
        // this check and the rename, a few system calls apart, or by a writer that opened the old
        // file before the rename and writes after it, would be lost. ssh-copy-id opens and writes
        // at once, and the app's own pairing runs on the same thread as its revoke, so neither
        // meets that window in practice.
        if (!sameFile(before, snapshot(path))) {
            ::unlink(temporary.constData());
            continue;
        }
        if (const auto error = replacefile::commit(temporary, path, displayName))
            return { RewriteResult::Kind::Failed, 0, *error };
        return { RewriteResult::Kind::Removed, removed, {} };
    }
    return { RewriteResult::Kind::Failed, 0,
             QStringLiteral("authorized_keys kept changing while the key was being removed; "
                            "try again") };
}

} // namespace authorizedkeysrewrite
