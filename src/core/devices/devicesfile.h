#pragma once

#include "devices/paireddevice.h"

#include <QList>

#include <optional>

// devices.json: {"version": 1, "devices": [{"name", "keyType", "fingerprint", "keyComment",
// "pairedAt" (ISO 8601, UTC), "address"}, ...]}
namespace devicesfile {

struct Loaded
{
    QList<PairedDevice> devices;
    // Why the file there is not used: not a regular file of the user's (it is opened as
    // SafeFile opens it, never through a link), unreadable, or not this format.
    QString unusable;
};

// A missing file is an empty list.
Loaded load(const QString &path);

// Replaces the file whole by rename (readers see the old list or the new one), mode 0600,
// creating its directory when missing: a link at the path is replaced itself, and what it points
// to stays as it was. Returns an error text on failure.
std::optional<QString> save(const QString &path, const QList<PairedDevice> &devices);

} // namespace devicesfile
