#include "platform/bundlepaths.h"

#include <QCoreApplication>
#include <QDir>

namespace platform {

QStringList etserverCandidates()
{
    // Contents/MacOS holds the auxiliary executables, Contents/Resources the resources.
    const QString dir = QCoreApplication::applicationDirPath();
    return {
        dir + QStringLiteral("/etserver"),
        QDir::cleanPath(dir + QStringLiteral("/../Resources/etserver_dist/etserver")),
    };
}

} // namespace platform
