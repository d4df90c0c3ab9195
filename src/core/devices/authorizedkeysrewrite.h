#pragma once

#include <QString>

#include <functional>

struct RewriteResult
{
    enum class Kind {
        Removed, // `removed` key lines are gone
        NotPresent, // the key (or the file) was already gone
        Refused, // the file is not one the app may replace; `message` says what to do
        Failed, // an I/O error; `message` has its text
    };
    Kind kind = Kind::Failed;
    int removed = 0;
    QString message;
};

namespace authorizedkeysrewrite {

// Removes every line of the authorized_keys file at `path` that holds the key with `fingerprint`,
// whatever its options and comment, with the app's comment line directly above each; every other
// byte stays. The new content replaces the file by rename, so that a crash leaves either the old
// file or the new one. A link, a file that is not the user's own, anything but a regular file
// and a file with other hard links are refused. `beforeReplace` runs just before the last check
// that the file did not change since it was read (tests append there as another writer would).
RewriteResult removeKey(const QString &path, const QString &fingerprint,
                        const std::function<void()> &beforeReplace = {});

} // namespace authorizedkeysrewrite
