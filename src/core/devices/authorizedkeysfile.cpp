#include "devices/authorizedkeysfile.h"

#include <QRegularExpression>

#include <sys/stat.h>

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
    const auto text = [&](qsizetype i) {
        return QByteArrayView(content).sliced(all[i].begin, all[i].end - all[i].begin);
    };
    QList<bool> drop(all.size(), false);
    // Lines whose line end the newline an entry begins with supplied: the file lacked its own.
    QList<qsizetype> completed;
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (!all[i].key || all[i].key->fingerprint() != fingerprint)
            continue;
        drop[i] = true;
        ++*removed;
        if (all[i].addedOn.isEmpty())
            continue;
        const qsizetype comment = i - 1;
        drop[comment] = true;
        // A pairing appends "\n# comment\nkey\n": the newline either stands alone above the
        // comment or ended the line there.
        if (comment == 0)
            continue;
        if (text(comment - 1) == "\n")
            drop[comment - 1] = true;
        else
            completed.append(comment - 1);
    }
    const qsizetype lastKept = drop.lastIndexOf(false);
    QByteArray kept;
    kept.reserve(content.size());
    for (qsizetype i = 0; i <= lastKept; ++i) {
        if (!drop[i])
            kept.append(text(i));
    }
    // In the middle of the file that line end keeps the next line apart; at its end it goes
    // again, as it came.
    if (lastKept >= 0 && completed.contains(lastKept) && kept.endsWith('\n'))
        kept.chop(1);
    return kept;
}

bool containsKey(const QByteArray &content, const QByteArray &keyLine)
{
    const auto key = SshKey::fromLine(keyLine);
    if (!key)
        return false;
    const QList<Line> all = lines(content);
    return std::any_of(all.cbegin(), all.cend(), [&](const Line &line) {
        return line.key && line.key->type == key->type && line.key->blob == key->blob;
    });
}

std::optional<QString> refusal(const struct stat &info)
{
    // The other names would keep what is removed, or share what is added.
    if (info.st_nlink != 1)
        return displayName
            + QStringLiteral(" has other hard links; replace it with a copy of its own");
    if (info.st_mode & (S_IWGRP | S_IWOTH))
        return displayName
            + QStringLiteral(" is writable by others (mode %1); fix with chmod 600 %2")
                  .arg(QString::number(info.st_mode & 07777, 8), displayName);
    return std::nullopt;
}

} // namespace authorizedkeysfile
