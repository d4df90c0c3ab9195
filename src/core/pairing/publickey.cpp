#include "pairing/publickey.h"

#include "devices/sshkey.h"
#include "devices/sshwire.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace publickey {
namespace {

bool isValidBlob(const QByteArray &type, const QByteArray &blob)
{
    sshwire::Reader reader(blob);
    const auto blobType = reader.string();
    if (!blobType || *blobType != type)
        return false;
    if (type == "ssh-ed25519") {
        const auto point = reader.string();
        return blob.size() == 51 && point && point->size() == 32 && reader.atEnd();
    }
    const auto exponent = reader.string();
    const auto modulus = reader.string();
    const qsizetype bits = modulus ? sshwire::bitLength(*modulus) : -1;
    return exponent && !exponent->isEmpty() && bits >= 2048 && bits <= SshKey::rsaMaximumBits
        && reader.atEnd();
}

bool isAcceptableComment(const QString &comment)
{
    if (comment.toUtf8().size() > 256)
        return false;
    const QList<uint> codePoints = comment.toUcs4();
    return std::all_of(codePoints.cbegin(), codePoints.cend(),
                       [](uint c) { return QChar::isPrint(char32_t(c)); });
}

} // namespace

QString withPlainComment(const QString &key)
{
    // The comment follows the second space; isAcceptable() refuses every other form.
    const qsizetype blobEnd = key.indexOf(u' ', key.indexOf(u' ') + 1);
    if (key.indexOf(u' ') < 0 || blobEnd < 0)
        return key;
    QString comment;
    for (const char32_t c : QStringView(key).mid(blobEnd + 1).toUcs4()) {
        const QChar::Category category = QChar::category(c);
        if (category != QChar::Other_Format && category != QChar::Separator_Line
            && category != QChar::Separator_Paragraph)
            comment.append(QStringView(QChar::fromUcs4(c)));
    }
    return key.left(blobEnd)
        + (comment.trimmed().isEmpty() ? QString() : QLatin1Char(' ') + comment);
}

bool isAcceptable(const QString &key)
{
    const auto parsed = SshKey::fromLine(key.toUtf8());
    if (!parsed || !parsed->options.isEmpty())
        return false;
    // A line break would end the entry early and start another.
    if (key.contains(u'\n') || key.contains(u'\r'))
        return false;
    // Only the form a phone sends, one space between the fields and none before: what is stored
    // then reads as the same key to every reader, the devices list's and sshd's alike.
    const QStringList fields = key.split(u' ');
    if (fields.size() < 2 || fields[0] != parsed->type)
        return false;
    const auto base64 = QByteArray::fromBase64Encoding(fields[1].toLatin1(),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!base64 || *base64 != parsed->blob)
        return false;
    if (parsed->type != QLatin1String("ssh-ed25519") && parsed->type != QLatin1String("ssh-rsa"))
        return false;
    return isAcceptableComment(parsed->comment)
        && isValidBlob(parsed->type.toLatin1(), parsed->blob);
}

} // namespace publickey
