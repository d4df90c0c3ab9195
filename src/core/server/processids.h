#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace processids {

// A decimal 32-bit process id after trimming white space: digits with an optional leading sign,
// nothing else. Callers still refuse values of 0 or below before signalling.
std::optional<qint32> parse(const QString &text);

// The contents of a pid file, or nothing when it is missing, unreadable or not a number. It is
// read as SafeFile reads it; why it was refused or could not be read goes to `problem`.
std::optional<qint32> readPidFile(const QString &path, QString *problem = nullptr);

// pgrep's output: one id per line; blank and unparsable lines are skipped; not UTF-8 gives none.
QList<qint32> parseList(const QByteArray &output);

} // namespace processids
