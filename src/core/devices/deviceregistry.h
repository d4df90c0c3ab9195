#pragma once

#include "devices/paireddevice.h"

#include <QFileSystemWatcher>
#include <QList>
#include <QObject>

#include <optional>

// The phones that can log in: those the app paired, kept in devices.json, and keys the app
// installed before it kept that list. What can log in is decided by authorized_keys alone, so
// the list is read from it each time.
class DeviceRegistry : public QObject
{
    Q_OBJECT

public:
    struct Revocation
    {
        bool ok = false;
        QString message; // for the user, either way
    };

    // `directory` holds devices.json; `home` is where .ssh/authorized_keys is looked for.
    DeviceRegistry(const QString &directory, const QString &home, QObject *parent = nullptr);

    // The entry a pairing makes; none when the line holds no key.
    static std::optional<PairedDevice> entryFor(const QString &deviceName,
                                                const QString &publicKeyLine,
                                                const QString &address, const QDateTime &when);
    // After a successful pairing; pairing the same key again updates its entry. Returns an error
    // text when the key line holds no key or the list cannot be saved.
    std::optional<QString> record(const QString &deviceName, const QString &publicKeyLine,
                                  const QString &address, const QDateTime &when);
    std::optional<QString> record(const PairedDevice &device);

    // The recorded devices whose key is still in authorized_keys, and the keys there under the
    // app's comment that were never recorded, as "Unknown device (added {date})"; newest first.
    // None, with `problem` set, when authorized_keys is there but cannot be read.
    QList<PairedDevice> devices(QString *problem = nullptr) const;

    // One device, by its exact fingerprint or its name in any case: its key leaves
    // authorized_keys, then the device leaves the list.
    Revocation revoke(const QString &nameOrFingerprint);

Q_SIGNALS:
    // After a pairing or a revoke, and when anything in ~/.ssh changes.
    void devicesChanged();

private:
    bool forget(const QString &fingerprint);
    void watch();

    QString m_file;
    QString m_authorizedKeys;
    QList<PairedDevice> m_recorded;
    bool m_unusable = false; // devices.json is there but was not read
    QFileSystemWatcher m_watcher;
};
