#include "windowsmodule.h"

#include "platform/executable.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace windowsmodule {

Run load(QString *error)
{
    const QString name = QStringLiteral("quivramac-windows.so");
    const QString dir = platform::executableDirectory();
    QString path = dir + u'/' + name;
    if (!QFileInfo::exists(path))
        path = QDir::cleanPath(dir + QStringLiteral("/../lib/quivramac/") + name);
    QLibrary module(path);
    const auto run = reinterpret_cast<Run>(module.resolve("quivramacRunWithWindows"));
    if (!run)
        *error = module.errorString();
    // Never unloaded: it runs until the app quits.
    return run;
}

} // namespace windowsmodule
