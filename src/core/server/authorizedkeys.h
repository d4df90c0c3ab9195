#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace authorizedkeys {

// "\n# Quivra Terminal - Added on {yyyy-MM-dd}\n{key}\n": the leading newline separates the entry
// from a last line that lacks its own.
QByteArray entry(const QString &publicKey, const QDate &date);

// Appends the entry for `publicKey` to {home}/.ssh/authorized_keys, creating ~/.ssh (0700) and
// the file (0600) when missing. Existing content is never truncated or replaced: the file is
// opened for appending as SafeFile opens it, written in one call and fsync'd; when that fails
// (a full disk) it is cut back to its old length, so that it holds no part of the entry. A key
// that is already there (same type and base64) is not added again. Why the key was not stored,
// in words that say how to fix it where the user can; none when it is there.
std::optional<QString> install(const QString &home, const QString &publicKey, const QDate &date);

} // namespace authorizedkeys
