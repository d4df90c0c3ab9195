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
    bool unusable = false; // there is a file, but it cannot be read or is not this format
};

// A missing file is an empty list.
Loaded load(const QString &path);

// Replaces the file whole (readers see the old list or the new one), mode 0600, creating its
// directory when missing. Returns an error text on failure.
std::optional<QString> save(const QString &path, const QList<PairedDevice> &devices);

} // namespace devicesfile
