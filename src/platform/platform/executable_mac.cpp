#include "platform/executable.h"

#include <QFileInfo>

#include <mach-o/dyld.h>
#include <vector>

namespace platform {

QString executableDirectory()
{
    uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    std::vector<char> path(size);
    if (_NSGetExecutablePath(path.data(), &size) != 0)
        return {};
    return QFileInfo(QString::fromUtf8(path.data())).canonicalPath();
}

} // namespace platform
