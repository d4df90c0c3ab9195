#include "devices/devicesfile.h"

#include "platform/replacefile.h"
#include "platform/safefile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace devicesfile {
namespace {

QJsonObject toJson(const PairedDevice &device)
{
    return { { "name", device.name },
             { "keyType", device.keyType },
             { "fingerprint", device.fingerprint },
             { "keyComment", device.keyComment },
             { "pairedAt", device.pairedAt.toUTC().toString(Qt::ISODateWithMs) },
             { "address", device.address } };
}

PairedDevice fromJson(const QJsonObject &json)
{
    return { json["name"].toString(),
             json["keyType"].toString(),
             json["fingerprint"].toString(),
             json["keyComment"].toString(),
             QDateTime::fromString(json["pairedAt"].toString(), Qt::ISODateWithMs).toUTC(),
             json["address"].toString() };
}

} // namespace

Loaded load(const QString &path)
{
    const safefile::Contents read = safefile::read(path, path);
    if (read.status == SafeFile::Status::Missing)
        return {};
    if (read.status != SafeFile::Status::Open)
        return { {}, read.error };
    const QJsonValue list =
        QJsonDocument::fromJson(read.bytes).object().value(QStringLiteral("devices"));
    if (!list.isArray())
        return { {}, path + QStringLiteral(" is not a list of devices") };
    Loaded loaded;
    for (const QJsonValue &entry : list.toArray()) {
        const PairedDevice device = fromJson(entry.toObject());
        if (!device.fingerprint.isEmpty()) // without it the entry matches no key
            loaded.devices.append(device);
    }
    return loaded;
}

std::optional<QString> save(const QString &path, const QList<PairedDevice> &devices)
{
    QJsonArray list;
    for (const PairedDevice &device : devices)
        list.append(toJson(device));
    const QJsonObject root { { "version", 1 }, { "devices", list } };

    QDir().mkpath(QFileInfo(path).absolutePath());
    return replacefile::replace(path, path, QJsonDocument(root).toJson(), 0600);
}

} // namespace devicesfile
