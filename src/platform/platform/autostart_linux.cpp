#include "platform/autostart.h"
#include "platform/replacefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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
    // Put in place by rename: a link there is replaced, never written through.
    const auto failed =
        replacefile::replace(path, path,
                             "[Desktop Entry]\nType=Application\nName=QuivraMac\n"
                             "Comment=Makes this computer reachable from the Quivra app\nExec=\""
                                 + QCoreApplication::applicationFilePath().toUtf8()
                                 + "\"\nTerminal=false\nX-GNOME-Autostart-enabled=true\n",
                             0644);
    if (failed && error)
        *error = *failed;
    return !failed;
}

} // namespace platform
