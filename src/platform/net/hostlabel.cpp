#include "net/hostlabel.h"

#include <QSysInfo>

namespace net {

QString hostLabel(const QString &hostName)
{
    return hostName.section(QLatin1Char('.'), 0, 0);
}

QString hostLabel()
{
    return hostLabel(QSysInfo::machineHostName());
}

} // namespace net
