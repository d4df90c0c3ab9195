#pragma once

#include "devices/sshkey.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

struct stat;

// Reading authorized_keys as the app wrote into it: each key the app installed sits directly
// under "# Quivra Terminal - Added on {date}".
namespace authorizedkeysfile {

struct Line
{
    qsizetype begin = 0;
    qsizetype end = 0; // past the line end, when there is one
    std::optional<SshKey> key;
    QString addedOn; // the date of the app's comment directly above a key, empty otherwise
};

// Every line of `content`, line ends included, so that the lines put back together are the
// content again byte for byte.
QList<Line> lines(const QByteArray &content);

// `content` without the lines that hold the key with `fingerprint`, nor the app's comment
// directly above each of them, nor the newline each of the app's entries began with: the blank
// line above its comment, or, where the file had no final newline and nothing follows, the line
// end of the line above. Every other byte as it was, so that a pairing and the revoke of its key
// give back the file as it was before. `removed` counts the key lines.
QByteArray withoutKey(const QByteArray &content, const QString &fingerprint, int *removed);

// Whether `content` holds the key of `keyLine` (same type and key material), whatever the
// options and comment of either.
bool containsKey(const QByteArray &content, const QByteArray &keyLine);

// How messages call the file.
inline const QString displayName = QStringLiteral("~/.ssh/authorized_keys");

// Why the app must not write to the authorized_keys that `info` describes, beyond SafeFile's
// rules: a file with other hard links, or one that others may change. In words that say how to
// fix it; none when it is fine.
std::optional<QString> refusal(const struct stat &info);

} // namespace authorizedkeysfile
