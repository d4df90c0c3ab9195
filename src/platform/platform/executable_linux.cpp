#include "platform/executable.h"

#include <QFile>
#include <QFileInfo>

namespace platform {

QString executableDirectory()
{
    return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).absolutePath();
}

} // namespace platform
