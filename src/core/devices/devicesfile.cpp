#include "devices/devicesfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

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
    QFile file(path);
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        return { {}, true };
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    const QJsonValue list = document.object().value(QStringLiteral("devices"));
    if (!list.isArray())
        return { {}, true };
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
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)
        || !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)
        || file.write(QJsonDocument(root).toJson()) < 0 || !file.commit())
        return QStringLiteral("Cannot save %1: %2").arg(path, file.errorString());
    return std::nullopt;
}

} // namespace devicesfile
