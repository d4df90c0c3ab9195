#include "server/processids.h"

#include <QFile>
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

std::optional<qint32> readPidFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(file.readAll());
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
