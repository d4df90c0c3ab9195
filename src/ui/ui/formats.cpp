#include "ui/formats.h"

#include <QCoreApplication>

#include <cmath>

namespace formats {

QString uptime(double seconds)
{
    const qint64 t = std::isfinite(seconds) && seconds > 0 ? qint64(seconds) : 0;
    const qint64 h = t / 3600, m = t % 3600 / 60, s = t % 60;
    if (t >= 3600)
        return QCoreApplication::translate("formats", "%1h %2m %3s").arg(h).arg(m).arg(s);
    if (t % 3600 < 60)
        return QCoreApplication::translate("formats", "%1s").arg(s);
    return QCoreApplication::translate("formats", "%1m %2s").arg(m).arg(s);
}

QString countdown(double seconds)
{
    const int t = std::isfinite(seconds) && seconds > 0 ? int(seconds) : 0;
    return QString::asprintf("%d:%02d", t / 60, t % 60);
}

} // namespace formats
