#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <optional>

namespace serverlog {

// The log keeps this many user-perceived characters (grapheme clusters), not bytes.
inline constexpr qsizetype maxCharacters = 10000;

// "[etserver] " + the chunk trimmed at both ends; nothing for an empty chunk or one that is not
// valid UTF-8 (such a chunk is dropped whole).
std::optional<QString> outputEntry(const QByteArray &chunk);

} // namespace serverlog

// The server's log: entries that each end in a line break, of which server output entries keep
// it to its last `limit` user-perceived characters. It knows how many characters it holds, so an
// entry costs its own length and what falls off the front, never the whole log's.
class ServerLog
{
public:
    explicit ServerLog(qsizetype limit = serverlog::maxCharacters)
        : m_limit(limit)
    { }

    const QString &text() const { return m_text; }

    // A supervision message: short, so the limit is left to the next output entry.
    void appendMessage(QStringView message);
    // A server output entry; afterwards the log holds at most `limit` characters.
    void appendOutput(QStringView entry);
    void assign(const QString &text);

private:
    void trimFront();

    QString m_text;
    qsizetype m_characters = 0;
    qsizetype m_limit;
};
