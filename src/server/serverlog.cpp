#include "server/serverlog.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>

namespace serverlog {

std::optional<QString> outputEntry(const QByteArray &chunk)
{
    if (chunk.isEmpty())
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(chunk);
    if (decoder.hasError())
        return std::nullopt;
    return QStringLiteral("[etserver] ") + text.trimmed();
}

QString keepLastCharacters(const QString &text, qsizetype limit)
{
    // Every grapheme cluster is at least one UTF-16 unit, so short texts need no counting.
    if (text.size() <= limit)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.toEnd();
    for (qsizetype kept = 0; kept < limit; ++kept) {
        if (finder.toPreviousBoundary() <= 0)
            return text;
    }
    return text.mid(finder.position());
}

} // namespace serverlog
