#include "devices/deviceregistry.h"

#include "devices/authorizedkeysfile.h"
#include "devices/authorizedkeysrewrite.h"
#include "devices/devicesfile.h"
#include "platform/logging.h"
#include "platform/safefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

struct InstalledKey
{
    SshKey key;
    QString fingerprint;
    QString addedOn;
};

// In file order; a key there twice counts once, with the app's date if either copy has one. A
// missing file holds none; one that cannot be read sets `problem`.
QList<InstalledKey> installedKeys(const QString &path, QString *problem)
{
    const safefile::Contents read = safefile::read(path, authorizedkeysfile::displayName);
    if (read.status == SafeFile::Status::Refused || read.status == SafeFile::Status::Failed) {
        *problem = read.error;
        return {};
    }
    const QByteArray &content = read.bytes;
    QList<InstalledKey> keys;
    QHash<QString, qsizetype> index;
    for (const authorizedkeysfile::Line &line : authorizedkeysfile::lines(content)) {
        if (!line.key)
            continue;
        const QString fingerprint = line.key->fingerprint();
        const auto found = index.constFind(fingerprint);
        if (found == index.cend()) {
            index.insert(fingerprint, keys.size());
            keys.append({ *line.key, fingerprint, line.addedOn });
        } else if (keys[*found].addedOn.isEmpty()) {
            keys[*found].addedOn = line.addedOn;
        }
    }
    return keys;
}

QString quoted(const QString &name)
{
    return QStringLiteral("“") + name + QStringLiteral("”");
}

} // namespace

DeviceRegistry::DeviceRegistry(const QString &directory, const QString &home, QObject *parent)
    : QObject(parent)
    , m_file(directory + QStringLiteral("/devices.json"))
    , m_authorizedKeys(home + QStringLiteral("/.ssh/authorized_keys"))
{
    // An unusable devices.json stays as it is until the next pairing, which first moves it to
    // devices.json.bad: the names in it are the user's, and a later version may read it. Moved,
    // not copied, it is never opened: a link goes as the link, a FIFO as the FIFO.
    const devicesfile::Loaded loaded = devicesfile::load(m_file);
    m_recorded = loaded.devices;
    m_unusable = !loaded.unusable.isEmpty();
    if (m_unusable)
        qCInfo(lcLog).nospace().noquote()
            << "[QuivraMac] Starting a new list of paired devices: " << loaded.unusable;
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] {
        watch();
        Q_EMIT devicesChanged();
    });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        watch();
        Q_EMIT devicesChanged();
    });
    watch();
}

std::optional<PairedDevice> DeviceRegistry::entryFor(const QString &deviceName,
                                                     const QString &publicKeyLine,
                                                     const QString &address, const QDateTime &when)
{
    const auto key = SshKey::fromLine(publicKeyLine.toUtf8());
    if (!key)
        return std::nullopt;
    return PairedDevice { deviceName,   key->type,    key->fingerprint(),
                          key->comment, when.toUTC(), address };
}

std::optional<QString> DeviceRegistry::record(const QString &deviceName,
                                              const QString &publicKeyLine, const QString &address,
                                              const QDateTime &when)
{
    const auto device = entryFor(deviceName, publicKeyLine, address, when);
    if (!device)
        return QStringLiteral("Not a public key line");
    return record(*device);
}

std::optional<QString> DeviceRegistry::record(const PairedDevice &device)
{
    if (device.fingerprint.isEmpty())
        return QStringLiteral("Not a public key line");
    forget(device.fingerprint);
    m_recorded.append(device);
    if (m_unusable)
        std::rename(QFile::encodeName(m_file).constData(),
                    QFile::encodeName(m_file + QStringLiteral(".bad")).constData());
    const auto error = devicesfile::save(m_file, m_recorded);
    m_unusable = m_unusable && error;
    watch(); // pairing may just have created ~/.ssh
    Q_EMIT devicesChanged();
    return error;
}

QList<PairedDevice> DeviceRegistry::devices(QString *problem) const
{
    QString unreadable;
    const QList<InstalledKey> installed = installedKeys(m_authorizedKeys, &unreadable);
    if (problem)
        *problem = unreadable;
    QSet<QString> fingerprints;
    for (const InstalledKey &key : installed)
        fingerprints.insert(key.fingerprint);
    QList<PairedDevice> result;
    for (const PairedDevice &device : m_recorded) {
        if (fingerprints.remove(device.fingerprint))
            result.append(device);
    }
    // Keys the user added without the app are theirs to manage, so only the app's are listed.
    for (const InstalledKey &unknown : installed) {
        if (unknown.addedOn.isEmpty() || !fingerprints.contains(unknown.fingerprint))
            continue;
        result.append({ QStringLiteral("Unknown device (added %1)").arg(unknown.addedOn),
                        unknown.key.type, unknown.fingerprint, unknown.key.comment,
                        QDate::fromString(unknown.addedOn, Qt::ISODate).startOfDay(Qt::UTC),
                        QString() });
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const auto &a, const auto &b) { return a.pairedAt > b.pairedAt; });
    return result;
}

DeviceRegistry::Revocation DeviceRegistry::revoke(const QString &nameOrFingerprint)
{
    QString problem;
    const QList<PairedDevice> all = devices(&problem);
    if (!problem.isEmpty())
        return { false,
                 QStringLiteral("Cannot revoke %1: %2").arg(quoted(nameOrFingerprint), problem) };
    QList<PairedDevice> matches;
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(matches),
                 [&](const PairedDevice &d) { return d.fingerprint == nameOrFingerprint; });
    if (matches.isEmpty()) {
        std::copy_if(all.cbegin(), all.cend(), std::back_inserter(matches), [&](const auto &d) {
            return d.name.compare(nameOrFingerprint, Qt::CaseInsensitive) == 0;
        });
    }
    if (matches.isEmpty()) {
        return { false,
                 QStringLiteral("No paired device has the name or fingerprint %1")
                     .arg(quoted(nameOrFingerprint)) };
    }
    if (matches.size() > 1) {
        QStringList fingerprints;
        for (const PairedDevice &device : std::as_const(matches))
            fingerprints.append(device.fingerprint);
        return { false,
                 QStringLiteral("%1 devices are called %2; revoke one by its fingerprint: %3")
                     .arg(QString::number(matches.size()), quoted(nameOrFingerprint),
                          fingerprints.join(QStringLiteral(", "))) };
    }

    const PairedDevice device = matches.first();
    const RewriteResult result =
        authorizedkeysrewrite::removeKey(m_authorizedKeys, device.fingerprint);
    if (result.kind == RewriteResult::Kind::Refused || result.kind == RewriteResult::Kind::Failed)
        return { false,
                 QStringLiteral("Cannot revoke %1: %2").arg(quoted(device.name), result.message) };
    // The key is gone either way: what the list says no longer matters to sshd.
    if (forget(device.fingerprint))
        devicesfile::save(m_file, m_recorded);
    Q_EMIT devicesChanged();
    if (result.kind == RewriteResult::Kind::NotPresent) {
        return { true,
                 QStringLiteral("%1 could already no longer log in; it is off the list now")
                     .arg(quoted(device.name)) };
    }
    return { true, QStringLiteral("Revoked %1: it can no longer log in").arg(quoted(device.name)) };
}

bool DeviceRegistry::forget(const QString &fingerprint)
{
    return m_recorded.removeIf([&](const PairedDevice &d) { return d.fingerprint == fingerprint; })
        > 0;
}

// QFileSystemWatcher drops a path once it is replaced or removed, so it is added back each time.
void DeviceRegistry::watch()
{
    const QString directory = QFileInfo(m_authorizedKeys).absolutePath();
    for (const QString &path : { directory, m_authorizedKeys }) {
        if (QFileInfo::exists(path) && !m_watcher.files().contains(path)
            && !m_watcher.directories().contains(path))
            m_watcher.addPath(path);
    }
}
