#pragma once

#include "devices/paireddevice.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQmlIntegration>

class DeviceRegistry;

// The phones that can log in, as the settings window's Devices tab lists them, newest first,
// and the revoking of one. It follows the registry, so a pairing or a revoke made elsewhere
// (quivractl, the session bus, an edit of authorized_keys) shows at once.
class DeviceList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The device list belongs to the controller")
    Q_PROPERTY(int count READ rowCount NOTIFY devicesChanged)
    // The newest device's name, for the panel's last-paired line; empty when there is none.
    Q_PROPERTY(QString newestName READ newestName NOTIFY devicesChanged)

public:
    enum Role {
        NameRole = Qt::UserRole + 1,
        FingerprintRole,
        ShortFingerprintRole,
        PairedRole,
        AddressRole,
    };

    explicit DeviceList(DeviceRegistry *registry, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    QString newestName() const;

    // The key leaves authorized_keys; the text says what happened, for the user, either way.
    Q_INVOKABLE QString revoke(const QString &fingerprint);

    // "SHA256:" and the first 12 characters of the hash, which tell keys apart at a glance.
    static QString shortFingerprint(const QString &fingerprint);

Q_SIGNALS:
    void devicesChanged();

private:
    void reload();

    QPointer<DeviceRegistry> m_registry;
    QList<PairedDevice> m_devices;
};
