#include "platform/bundlepaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace platform {

QString findEtserver()
{
    for (const QString &candidate : etserverCandidates()) {
        const QFileInfo info(candidate);
        if (info.isFile() && info.isExecutable())
            return info.absoluteFilePath();
    }
    return {};
}

QString supportDirectory()
{
    // GenericDataLocation is $XDG_DATA_HOME on Linux and ~/Library/Application Support on macOS.
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/QuivraMac");
    QDir().mkpath(path);
    return path;
}

} // namespace platform
