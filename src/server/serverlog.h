#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace serverlog {

// The log keeps this many user-perceived characters (grapheme clusters), not bytes.
inline constexpr qsizetype maxCharacters = 10000;

// "[etserver] " + the chunk trimmed at both ends; nothing for an empty chunk or one that is not
// valid UTF-8 (such a chunk is dropped whole).
std::optional<QString> outputEntry(const QByteArray &chunk);

// The last `limit` user-perceived characters of `text`.
QString keepLastCharacters(const QString &text, qsizetype limit);

} // namespace serverlog
