#include "platform/autostart.h"

namespace platform {

// The login item belongs to the system's service-management API, which needs the signed app
// bundle; until that build exists the preference is stored but not applied here.
QString launchAtLoginEntry()
{
    return {};
}

bool setLaunchAtLogin(bool, QString *error)
{
    if (error)
        *error = QStringLiteral("not available in this build");
    return false;
}

} // namespace platform
