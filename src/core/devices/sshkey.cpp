#include "devices/sshkey.h"

#include <QCryptographicHash>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

QByteArrayView skipBlanks(QByteArrayView text)
{
    qsizetype i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    return text.sliced(i);
}

// Up to the first blank outside double quotes, as sshd reads options: command="a, b" holds both,
// and \" is a quote that neither opens nor closes.
qsizetype optionsLength(QByteArrayView text)
{
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == '"')
            ++i;
        else if (text[i] == '"')
            quoted = !quoted;
        else if (isBlank(text[i]) && !quoted)
            return i;
    }
    return text.size();
}

// The wire format names its own type first; a line whose type word disagrees is no key.
bool blobNamesType(const QByteArray &blob, QByteArrayView type)
{
    if (blob.size() < 4)
        return false;
    const auto *bytes = reinterpret_cast<const uchar *>(blob.constData());
    const quint32 length = quint32(bytes[0]) << 24 | quint32(bytes[1]) << 16
        | quint32(bytes[2]) << 8 | quint32(bytes[3]);
    return length == quint32(type.size()) && blob.size() - 4 >= type.size()
        && QByteArrayView(blob).sliced(4, length) == type;
}

std::optional<SshKey> keyAt(QByteArrayView text)
{
    const qsizetype typeEnd = optionsLength(text);
    const QByteArrayView type = text.first(typeEnd);
    const QByteArrayView rest = skipBlanks(text.sliced(typeEnd));
    qsizetype dataEnd = 0;
    while (dataEnd < rest.size() && !isBlank(rest[dataEnd]))
        ++dataEnd;
    const auto decoded = QByteArray::fromBase64Encoding(rest.first(dataEnd).toByteArray(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || !blobNamesType(decoded.decoded, type))
        return std::nullopt;
    const QByteArrayView comment = skipBlanks(rest.sliced(dataEnd));
    return SshKey { QString::fromLatin1(type), decoded.decoded,
                    QString::fromUtf8(comment).trimmed() };
}

} // namespace

QString SshKey::fingerprint() const
{
    const QByteArray digest = QCryptographicHash::hash(blob, QCryptographicHash::Sha256);
    return QStringLiteral("SHA256:")
        + QString::fromLatin1(digest.toBase64(QByteArray::OmitTrailingEquals));
}

std::optional<SshKey> SshKey::fromLine(QByteArrayView line)
{
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    line = skipBlanks(line);
    if (line.isEmpty() || line.startsWith('#'))
        return std::nullopt;
    // As sshd reads it: a key right away, or else options first.
    if (auto key = keyAt(line))
        return key;
    const qsizetype options = optionsLength(line);
    auto key = keyAt(skipBlanks(line.sliced(options)));
    if (key)
        key->options = line.first(options).toByteArray();
    return key;
}
