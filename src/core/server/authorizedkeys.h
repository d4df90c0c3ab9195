#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace authorizedkeys {

// "\n# Quivra Terminal - Added on {yyyy-MM-dd}\n{key}\n": the leading newline separates the entry
// from a last line that lacks its own.
QByteArray entry(const QString &publicKey, const QDate &date);

// Why a key was not stored: a refusal names something unsafe the user can fix; anything else
// is the system's error.
struct Problem
{
    bool refused = false;
    QString text;
};

// Appends the entry for `publicKey` to {home}/.ssh/authorized_keys, creating ~/.ssh (0700) and
// the file (0600) when missing. Existing content is never truncated or replaced: the file is
// opened for appending without following links, written in one call and fsync'd. A key that is
// already there (same type and base64) is not added again.
std::optional<Problem> install(const QString &home, const QString &publicKey, const QDate &date);

} // namespace authorizedkeys
