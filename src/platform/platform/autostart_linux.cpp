#include "platform/autostart.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

namespace platform {

QString launchAtLoginEntry()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/autostart/quivramac.desktop");
}

bool setLaunchAtLogin(bool on, QString *error)
{
    const QString path = launchAtLoginEntry();
    if (!on) {
        if (!QFile::exists(path) || QFile::remove(path))
            return true;
        if (error)
            *error = QStringLiteral("cannot remove ") + path;
        return false;
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    file.write("[Desktop Entry]\nType=Application\nName=QuivraMac\n"
               "Comment=Makes this computer reachable from the Quivra app\nExec=\""
               + QCoreApplication::applicationFilePath().toUtf8()
               + "\"\nTerminal=false\nX-GNOME-Autostart-enabled=true\n");
    if (!file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

} // namespace platform
