#include "platform/autostart.h"

#include "platform/logging.h"
#include "platform/userdefaults.h"

namespace platform {

void applyLaunchAtLoginPreference()
{
    const QString key = QStringLiteral("launchAtLogin");
    userdefaults::registerDefaults({ { key, true } });
    QString error;
    if (!setLaunchAtLogin(userdefaults::boolValue(key), &error))
        qCInfo(lcConsole).nospace().noquote() << "Launch at login not changed: " << error;
}

} // namespace platform
