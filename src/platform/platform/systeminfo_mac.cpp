#include "platform/systeminfo.h"

#include <QFileInfo>

namespace platform {

bool tailscaleInstalled()
{
    return QFileInfo::exists(QStringLiteral("/Applications/Tailscale.app"));
}

} // namespace platform
