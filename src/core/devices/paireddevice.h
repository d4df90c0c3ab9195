#pragma once

#include <QDateTime>
#include <QString>

// A phone that may log in with its key.
struct PairedDevice
{
    QString name; // as the phone sent it, already made safe to show
    QString keyType {};
    QString fingerprint {}; // "SHA256:...", as ssh-keygen prints it
    QString keyComment {};
    QDateTime pairedAt {}; // UTC
    QString address {}; // the phone's, when it paired; empty for a key found only in the file

    bool operator==(const PairedDevice &) const = default;
};
