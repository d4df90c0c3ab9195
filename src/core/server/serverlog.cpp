#include "server/serverlog.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

// Between two ASCII units there is always a cluster boundary except inside "\r\n", so ASCII text
// (which server output almost always is) is counted without text analysis.
bool isAscii(QChar c)
{
    return c.unicode() < 0x80;
}

bool isCrLf(QStringView text, qsizetype at)
{
    return text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
}

qsizetype countCharacters(QStringView text)
{
    qsizetype count = 0;
    for (qsizetype at = 0; at < text.size(); ++count) {
        if (!isAscii(text[at])) {
            QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
            count = 0;
            while (finder.toNextBoundary() > 0)
                ++count;
            return count;
        }
        at += isCrLf(text, at) ? 2 : 1;
    }
    return count;
}

// Where the text after its first `n` characters starts; `n` is at most what the text holds.
qsizetype afterCharacters(QStringView text, qsizetype n)
{
    qsizetype at = 0;
    qsizetype skipped = 0;
    for (; skipped < n && at < text.size() && isAscii(text[at]); ++skipped)
        at += isCrLf(text, at) ? 2 : 1;
    // Anything but ASCII right after the cut might belong to the character before it.
    if (skipped == n && (at == text.size() || isAscii(text[at])))
        return at;
    // Boundaries up to a line break do not depend on what follows it, so only the front of the
    // text up to one needs analysing, further only when that is too short.
    for (qsizetype window = n + 256;; window *= 2) {
        const qsizetype lineEnd = window >= text.size() ? -1 : text.indexOf(u'\n', window);
        const QStringView front = lineEnd < 0 ? text : text.first(lineEnd + 1);
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, front.data(), front.size());
        qsizetype boundary = 0;
        skipped = 0;
        while (skipped < n && (boundary = finder.toNextBoundary()) > 0)
            ++skipped;
        if (skipped == n)
            return boundary;
    }
}

// Where the text's last `n` characters start; nothing when it holds fewer.
std::optional<qsizetype> lastCharacters(QStringView text, qsizetype n)
{
    qsizetype at = text.size();
    qsizetype kept = 0;
    for (; kept < n && at > 0 && isAscii(text[at - 1]); ++kept)
        at -= (at >= 2 && isCrLf(text, at - 2)) ? 2 : 1;
    if (kept < n && at == 0)
        return std::nullopt;
    // Anything but ASCII right before the cut might join the character after it.
    if (kept == n && (at == 0 || isAscii(text[at - 1])))
        return at;
    // As above, from a line break near the end, further back only when that is too short.
    for (qsizetype window = n + 256;; window *= 2) {
        const qsizetype from =
            window >= text.size() ? 0 : text.lastIndexOf(u'\n', text.size() - window) + 1;
        const QStringView back = text.sliced(from);
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, back.data(), back.size());
        finder.toEnd();
        qsizetype boundary = back.size();
        kept = 0;
        while (kept < n && (boundary = finder.toPreviousBoundary()) >= 0)
            ++kept;
        if (kept == n)
            return from + boundary;
        if (from == 0)
            return std::nullopt;
    }
}

} // namespace

namespace serverlog {

std::optional<QString> outputEntry(const QByteArray &chunk)
{
    if (chunk.isEmpty())
        return std::nullopt;
    // Decoded straight behind the prefix and trimmed in place: chunks can be large.
    static constexpr QStringView prefix = u"[etserver] ";
    QString entry(prefix.size() + chunk.size(), Qt::Uninitialized);
    std::copy(prefix.begin(), prefix.end(), entry.begin());
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QChar *end = decoder.appendToBuffer(entry.data() + prefix.size(), chunk);
    if (decoder.hasError())
        return std::nullopt;
    const QStringView text(entry.constData() + prefix.size(), end);
    const QStringView trimmed = text.trimmed();
    const qsizetype leading = trimmed.data() - text.data();
    entry.truncate(prefix.size() + leading + trimmed.size());
    entry.remove(prefix.size(), leading);
    return entry;
}

} // namespace serverlog

void ServerLog::appendMessage(QStringView message)
{
    // After a line break a new character always begins, so the counts simply add up.
    const bool joinsLastCharacter = !m_text.isEmpty() && !m_text.endsWith(u'\n');
    const qsizetype from = m_text.size();
    m_text.append(message).append(u'\n');
    m_characters = joinsLastCharacter
        ? countCharacters(m_text)
        : m_characters + countCharacters(QStringView(m_text).sliced(from));
}

void ServerLog::appendOutput(QStringView entry)
{
    // An entry that fills the log alone replaces it, and only its end is looked at: a flood of
    // output arrives as large entries.
    const bool startsCharacter = m_text.isEmpty() || m_text.endsWith(u'\n');
    if (startsCharacter && entry.size() >= m_limit && !entry.endsWith(u'\r')) {
        if (const auto from = lastCharacters(entry, m_limit - 1)) {
            m_text.resize(0);
            m_text.append(entry.sliced(*from)).append(u'\n');
            m_characters = m_limit;
            return;
        }
    }
    appendMessage(entry);
    trimFront();
}

void ServerLog::assign(const QString &text)
{
    m_text = text;
    m_characters = countCharacters(m_text);
}

void ServerLog::trimFront()
{
    if (m_characters <= m_limit)
        return;
    m_text.remove(0, afterCharacters(m_text, m_characters - m_limit));
    m_characters = m_limit;
}
