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
    // Finding grapheme boundaries means analysing text, and analysing the whole log for every
    // chunk of output would dominate ingestion. A line break ends a cluster whatever precedes it,
    // so the analysis can start after one near the end, further back only when that is too short.
    for (qsizetype window = limit + 256;; window *= 2) {
        const qsizetype from =
            window >= text.size() ? 0 : text.lastIndexOf(u'\n', text.size() - window) + 1;
        const QString tail = text.mid(from);
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, tail);
        finder.toEnd();
        for (qsizetype kept = 1; kept <= limit; ++kept) {
            const qsizetype at = finder.toPreviousBoundary();
            if (at > 0 && kept == limit)
                return tail.mid(at);
            if (at <= 0) {
                if (kept == limit || from == 0)
                    return tail;
                break;
            }
        }
    }
}

} // namespace serverlog
