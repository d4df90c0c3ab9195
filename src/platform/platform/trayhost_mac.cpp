#include "platform/trayhost.h"

// The menu bar is always there.
std::unique_ptr<QObject> TrayHost::watchNativeTray()
{
    setNative(true);
    return nullptr;
}
