#include "platform/bundlepaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace platform {

QStringList etserverCandidates()
{
    const QString dir = QCoreApplication::applicationDirPath();
    QStringList candidates {
        dir + QStringLiteral("/etserver"),
        QDir::cleanPath(dir + QStringLiteral("/../libexec/quivramac/etserver")),
        QDir::cleanPath(dir + QStringLiteral("/../share/quivramac/etserver_dist/etserver")),
    };
    // Eternal Terminal installed by the user's package manager.
    const QString onPath = QStandardPaths::findExecutable(QStringLiteral("etserver"));
    if (!onPath.isEmpty())
        candidates << onPath;
    return candidates;
}

} // namespace platform
