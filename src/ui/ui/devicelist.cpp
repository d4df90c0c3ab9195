#include "ui/devicelist.h"

#include "devices/deviceregistry.h"

#include <QLocale>

DeviceList::DeviceList(DeviceRegistry *registry, QObject *parent)
    : QAbstractListModel(parent)
    , m_registry(registry)
{
    if (m_registry) {
        connect(m_registry, &DeviceRegistry::devicesChanged, this, &DeviceList::reload);
        m_devices = m_registry->devices();
    }
}

int DeviceList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_devices.size());
}

QVariant DeviceList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const PairedDevice &device = m_devices.at(index.row());
    switch (role) {
    case NameRole:
        return device.name;
    case FingerprintRole:
        return device.fingerprint;
    case ShortFingerprintRole:
        return shortFingerprint(device.fingerprint);
    case PairedRole:
        return QLocale().toString(device.pairedAt.toLocalTime().date(), QLocale::ShortFormat);
    case AddressRole:
        return device.address;
    default:
        return {};
    }
}

QHash<int, QByteArray> DeviceList::roleNames() const
{
    return { { NameRole, "name" },
             { FingerprintRole, "fingerprint" },
             { ShortFingerprintRole, "shortFingerprint" },
             { PairedRole, "paired" },
             { AddressRole, "address" } };
}

QString DeviceList::newestName() const
{
    return m_devices.isEmpty() ? QString() : m_devices.constFirst().name;
}

QString DeviceList::revoke(const QString &fingerprint)
{
    if (!m_registry)
        return {};
    return m_registry->revoke(fingerprint).message;
}

QString DeviceList::shortFingerprint(const QString &fingerprint)
{
    const QString prefix = QStringLiteral("SHA256:");
    if (!fingerprint.startsWith(prefix) || fingerprint.size() <= prefix.size() + 12)
        return fingerprint;
    return fingerprint.left(prefix.size() + 12) + QChar(0x2026);
}

void DeviceList::reload()
{
    const QList<PairedDevice> devices = m_registry ? m_registry->devices() : QList<PairedDevice>();
    if (devices == m_devices)
        return;
    beginResetModel();
    m_devices = devices;
    endResetModel();
    Q_EMIT devicesChanged();
}
