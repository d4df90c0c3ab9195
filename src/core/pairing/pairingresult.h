#pragma once

#include <QString>

// What an accepted pairing request hands to the owner.
struct PairingResult
{
    QString publicKey;
    QString deviceName;
    // Where the request came from, for the list of paired devices.
    QString address {};
};
