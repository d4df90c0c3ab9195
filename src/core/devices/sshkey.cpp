#include "devices/sshkey.h"

#include "devices/sshwire.h"

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

// As sshd reads a blob: it names its own type first, and a line whose type word disagrees is no
// key; nor is an RSA key whose modulus is shorter or longer than sshd takes.
bool isKeyOf(const QByteArray &blob, QByteArrayView type)
{
    sshwire::Reader reader(blob);
    const auto named = reader.string();
    if (!named || *named != type)
        return false;
    if (type != "ssh-rsa")
        return true;
    const auto exponent = reader.string();
    const auto modulus = reader.string();
    const qsizetype bits = modulus ? sshwire::bitLength(*modulus) : -1;
    return exponent && sshwire::bitLength(*exponent) >= 0 && bits >= SshKey::rsaMinimumBits
        && bits <= SshKey::rsaMaximumBits;
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
    if (!decoded || !isKeyOf(decoded.decoded, type))
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
