#include "displayplatform.h"

#include "platform/logging.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>

namespace displayplatform {
namespace {

bool waylandPluginInstalled()
{
    return !QDir(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"))
                .entryList({ QStringLiteral("*qwayland*") }, QDir::Files)
                .isEmpty();
}

} // namespace

bool choose()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return true;
    if (waylandPluginInstalled()) {
        // Qt picks Wayland by itself only where XDG_SESSION_TYPE says so.
        qputenv("QT_QPA_PLATFORM", x11 ? "wayland;xcb" : "wayland");
        return true;
    }
    if (x11)
        return true;
    qCInfo(lcConsole).nospace().noquote()
        << "QuivraMac cannot open windows on this Wayland desktop: Qt's Wayland platform (Debian "
           "package qt6-wayland) is not installed, and there is no X11 display (Xwayland) to use "
           "instead";
    return false;
}

void explainFallback()
{
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    qCInfo(lcConsole).nospace().noquote()
        << "QuivraMac uses X11 (Xwayland) on this Wayland desktop: "
        << (waylandPluginInstalled()
                ? QStringLiteral(
                    "the Wayland platform did not start, or QT_QPA_PLATFORM asks for X11")
                : QStringLiteral(
                    "Qt's Wayland platform (Debian package qt6-wayland) is not installed"));
}

} // namespace displayplatform
