#include "platform/systeminfo.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace platform {

bool tailscaleInstalled()
{
    return !QStandardPaths::findExecutable(QStringLiteral("tailscale")).isEmpty()
        || QFileInfo::exists(QStringLiteral("/usr/sbin/tailscaled"));
}

} // namespace platform
