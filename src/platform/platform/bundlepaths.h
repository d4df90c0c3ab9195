#pragma once

#include <QString>
#include <QStringList>

namespace platform {

// Places the application bundle may hold the etserver executable, in lookup order: the auxiliary
// executable, then the "etserver_dist" resource, then (Linux only) the user's PATH.
QStringList etserverCandidates();

// The first candidate that is an executable file, or an empty string.
QString findEtserver();

// "<application support>/QuivraMac", created with its parents on every lookup (errors ignored).
QString supportDirectory();

} // namespace platform
