#include "devices/authorizedkeysfile.h"

#include <QRegularExpression>

namespace authorizedkeysfile {
namespace {

// The comment's date as written, or nothing for any other line.
std::optional<QString> appCommentDate(QByteArrayView line)
{
    if (!line.startsWith("# Quivra Terminal - ")) // most lines: no need to decode them
        return std::nullopt;
    static const QRegularExpression comment(
        QStringLiteral("^# Quivra Terminal - Added on (\\S+)\\s*$"));
    const QRegularExpressionMatch match = comment.match(QString::fromUtf8(line));
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

} // namespace

QList<Line> lines(const QByteArray &content)
{
    QList<Line> result;
    std::optional<QString> dateAbove;
    for (qsizetype begin = 0; begin < content.size();) {
        const qsizetype newline = content.indexOf('\n', begin);
        const qsizetype end = newline < 0 ? content.size() : newline + 1;
        const QByteArrayView text = QByteArrayView(content).sliced(begin, end - begin);
        Line line { begin, end, SshKey::fromLine(text), {} };
        if (line.key && dateAbove)
            line.addedOn = *dateAbove;
        dateAbove = appCommentDate(text);
        result.append(line);
        begin = end;
    }
    return result;
}

QByteArray withoutKey(const QByteArray &content, const QString &fingerprint, int *removed)
{
    *removed = 0;
    const QList<Line> all = lines(content);
    QList<bool> drop(all.size(), false);
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (!all[i].key || all[i].key->fingerprint() != fingerprint)
            continue;
        drop[i] = true;
        ++*removed;
        if (!all[i].addedOn.isEmpty())
            drop[i - 1] = true;
    }
    QByteArray kept;
    kept.reserve(content.size());
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (!drop[i])
            kept.append(QByteArrayView(content).sliced(all[i].begin, all[i].end - all[i].begin));
    }
    return kept;
}

} // namespace authorizedkeysfile
