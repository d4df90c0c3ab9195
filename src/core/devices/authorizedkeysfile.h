#pragma once

#include "devices/sshkey.h"

#include <QByteArray>
#include <QList>
#include <QString>

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
// directly above each of them; every other byte as it was. `removed` counts the key lines.
QByteArray withoutKey(const QByteArray &content, const QString &fingerprint, int *removed);

} // namespace authorizedkeysfile
