#include "pairing/requestparsing.h"

#include <QHostAddress>

namespace requestparsing {

namespace {

const QString lineEnd = QStringLiteral("\r\n");

// The request line and the header lines, up to the empty line that ends them.
QStringList headLines(const QString &request)
{
    const qsizetype end = request.indexOf(lineEnd + lineEnd);
    return (end < 0 ? request : request.left(end)).split(lineEnd);
}

bool isTokenCharacter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9')
        || QStringView(u"!#$%&'*+-.^_`|~").contains(c);
}

bool isToken(QStringView text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isTokenCharacter);
}

bool isRequestLine(const QString &line)
{
    const QStringList parts = line.split(u' ');
    if (parts.size() != 3 || !isToken(parts[0]) || parts[1].isEmpty())
        return false;
    const bool visible = std::all_of(parts[1].begin(), parts[1].end(),
                                     [](QChar c) { return c > u' ' && c < QChar(0x7f); });
    const QString &version = parts[2];
    return visible && version.size() == 8 && version.startsWith(u"HTTP/1.")
        && version.back().isDigit() && version.back().unicode() < 0x80;
}

} // namespace

QStringList lines(const QString &request)
{
    return request.split(lineEnd);
}

bool isWellFormed(const QString &request)
{
    if (!request.contains(lineEnd + lineEnd))
        return false;
    const QStringList head = headLines(request);
    if (!isRequestLine(head.constFirst()))
        return false;
    return std::all_of(head.begin() + 1, head.end(), [](const QString &line) {
        const qsizetype colon = line.indexOf(u':');
        return colon > 0 && isToken(QStringView(line).left(colon));
    });
}

std::optional<QString> headerValue(const QString &name, const QString &request)
{
    const QString prefix = name.toLower() + QLatin1Char(':');
    const QStringList head = headLines(request);
    for (qsizetype i = 1; i < head.size(); ++i) {
        const QString &line = head[i];
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
    return request.split(lineEnd + lineEnd).constLast();
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

// Letters, digits and hyphens between dots, as host names are written.
bool isHostName(const QString &name)
{
    const QStringList labels = name.split(u'.');
    return std::all_of(labels.begin(), labels.end(), [](const QString &label) {
        return !label.isEmpty() && std::all_of(label.begin(), label.end(), [](QChar c) {
            return c == u'-' || (c.unicode() < 0x80 && c.isLetterOrNumber());
        });
    });
}

bool isUnder(const QString &name, const QString &domain)
{
    return name.endsWith(domain) && isHostName(name);
}

bool isOurHost(QString host)
{
    // Without its port: "[v6]:port", "v4:port", "name:port"; an unbracketed v6 has no port.
    QString port;
    if (host.startsWith(u'[')) {
        const qsizetype close = host.indexOf(u']');
        if (close < 0)
            return false;
        port = host.mid(close + 1);
        host = host.mid(1, close - 1);
    } else if (host.count(u':') == 1) {
        port = host.mid(host.indexOf(u':'));
        host.truncate(host.indexOf(u':'));
    }
    const QStringView digits = QStringView(port).mid(1);
    if (!port.isEmpty()
        && (!port.startsWith(u':')
            || !std::all_of(digits.begin(), digits.end(), [](QChar c) { return c.isDigit(); })))
        return false;
    if (host.endsWith(u'.'))
        host.chop(1);
    host = host.toLower();
    return QHostAddress().setAddress(host) || host == u"localhost"
        || isUnder(host, QStringLiteral(".local")) || isUnder(host, QStringLiteral(".ts.net"));
}

} // namespace

bool comesFromWebPage(const QString &request)
{
    bool fetchMetadata = false;
    // "Sec-Fetch-Site: none" is the user's own navigation, a typed address or a bookmark; the
    // other Sec-Fetch headers come with it, and without it they speak of a page.
    std::optional<bool> typedByUser;
    const QStringList head = headLines(request);
    for (qsizetype i = 1; i < head.size(); ++i) {
        const QString name = head[i].section(u':', 0, 0).toLower();
        if (name == u"origin")
            return true;
        if (!name.startsWith(u"sec-fetch-"))
            continue;
        fetchMetadata = true;
        if (name == u"sec-fetch-site")
            typedByUser = typedByUser.value_or(true)
                && head[i].section(u':', 1).trimmed().compare(u"none", Qt::CaseInsensitive) == 0;
    }
    if (fetchMetadata && !typedByUser.value_or(false))
        return true;
    const std::optional<QString> host = headerValue(QStringLiteral("Host"), request);
    return host && !isOurHost(*host);
}

QString sanitizeDeviceName(const QString &name)
{
    constexpr qsizetype maxLength = 64;
    QString clean;
    for (const char32_t c : name.toUcs4()) {
        switch (QChar::category(c)) {
        case QChar::Other_Control:
        case QChar::Other_Format: // text direction, zero-width and byte-order marks among them
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            continue;
        default:
            clean.append(QStringView(QChar::fromUcs4(c)));
        }
    }
    if (clean.size() > maxLength)
        clean.truncate(clean.at(maxLength - 1).isHighSurrogate() ? maxLength - 1 : maxLength);
    return clean;
}

} // namespace requestparsing
