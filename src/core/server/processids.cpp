#include "server/processids.h"

#include "platform/safefile.h"

#include <QStringDecoder>

#include <limits>

namespace processids {

std::optional<qint32> parse(const QString &text)
{
    const QString trimmed = text.trimmed();
    qsizetype digitsFrom = 0;
    if (trimmed.startsWith(QLatin1Char('+')) || trimmed.startsWith(QLatin1Char('-')))
        digitsFrom = 1;
    if (trimmed.size() == digitsFrom)
        return std::nullopt;
    for (qsizetype i = digitsFrom; i < trimmed.size(); ++i) {
        if (trimmed.at(i) < QLatin1Char('0') || trimmed.at(i) > QLatin1Char('9'))
            return std::nullopt;
    }
    bool ok = false;
    const qint64 value = trimmed.toLongLong(&ok);
    if (!ok || value < std::numeric_limits<qint32>::min()
        || value > std::numeric_limits<qint32>::max())
        return std::nullopt;
    return qint32(value);
}

std::optional<qint32> readPidFile(const QString &path, QString *problem)
{
    // A number and a line end; anything longer is not etserver's.
    constexpr qint64 limit = 64;
    const safefile::Contents read = safefile::read(path, path, limit);
    if (problem)
        *problem = read.error;
    if (read.status != SafeFile::Status::Open)
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(read.bytes);
    if (decoder.hasError())
        return std::nullopt;
    return parse(text);
}

QList<qint32> parseList(const QByteArray &output)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(output);
    if (decoder.hasError())
        return {};
    QList<qint32> ids;
    const auto lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (const auto id = parse(line))
            ids.append(*id);
    }
    return ids;
}

} // namespace processids
