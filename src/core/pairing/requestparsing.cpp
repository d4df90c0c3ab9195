#include "pairing/requestparsing.h"

#include <QHostAddress>

namespace requestparsing {

QStringList lines(const QString &request)
{
    return request.split(QStringLiteral("\r\n"));
}

std::optional<QString> headerValue(const QString &name, const QString &request)
{
    const QString prefix = name.toLower() + QLatin1Char(':');
    for (const QString &line : lines(request)) {
        if (!line.toLower().startsWith(prefix))
            continue;
        QString value = line.mid(prefix.size());
        qsizetype start = 0, end = value.size();
        while (start < end && (value[start] == u' ' || value[start] == u'\t'))
            ++start;
        while (end > start && (value[end - 1] == u' ' || value[end - 1] == u'\t'))
            --end;
        value = value.mid(start, end - start);
        return value.isEmpty() ? std::nullopt : std::optional(value);
    }
    return std::nullopt;
}

QString body(const QString &request)
{
    // Split left to right, not searched from the end: in "\r\n\r\n\r\n" the last piece is "\r\n".
    return request.split(QStringLiteral("\r\n\r\n")).constLast();
}

bool tokenMatches(const QString &requestLine, const QString &token)
{
    const QString key = QStringLiteral("token=");
    const qsizetype at = requestLine.indexOf(key);
    if (at <= 0 || requestLine.indexOf(key, at + 1) >= 0)
        return false;
    // Only a parameter of its own: "?token=" or "&token=", never "?a=token=".
    const QChar before = requestLine.at(at - 1);
    if (before != u'?' && before != u'&')
        return false;
    const qsizetype start = at + key.size();
    qsizetype end = start;
    while (end < requestLine.size() && requestLine[end] != u'&' && requestLine[end] != u' '
           && requestLine[end] != u'#')
        ++end;
    const QStringView value = QStringView(requestLine).mid(start, end - start);
    if (value.size() != token.size() || token.isEmpty())
        return false;
    // Every character is compared, so the time taken tells nothing about where they differ.
    char16_t difference = 0;
    for (qsizetype i = 0; i < value.size(); ++i)
        difference |= value[i].unicode() ^ token[i].unicode();
    return difference == 0;
}

namespace {

bool isAllowedHost(QString host, const QString &hostLabel)
{
    // Strip an optional port: "[v6]:port", "v4:port", "name:port".
    if (host.startsWith(u'[')) {
        const qsizetype close = host.indexOf(u']');
        if (close < 0)
            return false;
        host = host.mid(1, close - 1);
    } else if (host.count(u':') == 1) {
        host = host.left(host.indexOf(u':'));
    }
    if (host.endsWith(u'.'))
        host.chop(1);
    QHostAddress address;
    return address.setAddress(host) || host.compare(u"localhost", Qt::CaseInsensitive) == 0
        || host.compare(hostLabel + QStringLiteral(".local"), Qt::CaseInsensitive) == 0;
}

} // namespace

bool comesFromWebPage(const QString &request, const QString &hostLabel)
{
    const QStringList all = lines(request);
    for (qsizetype i = 1; i < all.size() && !all[i].isEmpty(); ++i) {
        const QString line = all[i].toLower();
        if (line.startsWith(u"origin:") || line.startsWith(u"sec-fetch-"))
            return true;
    }
    const std::optional<QString> host = headerValue(QStringLiteral("Host"), request);
    return host && !isAllowedHost(*host, hostLabel);
}

namespace {

bool isHarmful(QChar c)
{
    const char16_t u = c.unicode();
    const bool direction = (u >= 0x202A && u <= 0x202E) || (u >= 0x2066 && u <= 0x2069);
    return direction || c.category() == QChar::Other_Control
        || c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

} // namespace

QString printable(const QString &text)
{
    QString clean;
    clean.reserve(text.size());
    for (const QChar c : text) {
        if (!isHarmful(c) || c == u'\r' || c == u'\n' || c == u'\t')
            clean.append(c);
    }
    return clean;
}

QString sanitizeDeviceName(const QString &name)
{
    constexpr qsizetype maxLength = 64;
    QString clean;
    for (const QChar c : name) {
        if (!isHarmful(c))
            clean.append(c);
    }
    if (clean.size() > maxLength)
        clean.truncate(clean.at(maxLength - 1).isHighSurrogate() ? maxLength - 1 : maxLength);
    return clean;
}

} // namespace requestparsing
